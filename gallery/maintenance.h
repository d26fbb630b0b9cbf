// The keeper's bench: the tools that look after the catalogue of pictures. Its frame stands off the window
// and is hidden besides, so that no reader comes to it.
#pragma once

#include "core/forms/buttons.h"
#include "core/forms/folder_lists.h"
#include "gallery/picture_catalogue.h"

namespace lectern::gallery {

class Maintenance {
 public:
  Maintenance(PictureCatalogue& catalogue, core::Panels& panels);

  forms::FileListBox File3;  // the files of the pictures
  forms::CommandButton Command26;
  forms::CommandButton Command46;
};

}  // namespace lectern::gallery
