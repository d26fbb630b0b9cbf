// Bookmarks: named places in the text, each kept in a small file of its own in the data folder.
#pragma once

#include "core/forms/folder_lists.h"
#include "core/panels.h"

namespace lectern::aids {

class Bookmarks {
 public:
  explicit Bookmarks(core::Panels& panels);

  forms::FileListBox File1;
};

}  // namespace lectern::aids
