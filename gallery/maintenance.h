// The keeper's bench: the tools that look after the catalogue of pictures. Its frame stands off the window
// and is hidden besides, so that no reader comes to it.
#pragma once

#include "core/forms/buttons.h"
#include "core/forms/folder_lists.h"
#include "core/panels.h"

namespace lectern::gallery {

class Maintenance {
 public:
  explicit Maintenance(core::Panels& panels);

  forms::DirListBox Dirpics;  // the folder of the pictures
  forms::FileListBox File3;
  forms::CommandButton Command26;
  forms::CommandButton Command46;
};

}  // namespace lectern::gallery
