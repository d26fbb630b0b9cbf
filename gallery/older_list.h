// An older way of listing the book's pictures, kept beside PictureCatalogue's: one list of the whole book and
// one of the chapter. Its button is the keeper's; the second form of it, which nothing but the driver
// calls, can start the slide show.
#pragma once

#include "forms/containers.h"
#include "gallery/picture_catalogue.h"

namespace lectern::gallery {

class OlderList {
  forms::Frame& Frame5_;
  forms::Frame& Frame6_;
  PictureCatalogue& catalogue_;
  reader::Reader& reader_;

 public:
  OlderList(PictureCatalogue& the_catalogue, forms::Frame& Frame5, forms::Frame& Frame6);

  void ListChapterPictures();

  forms::CommandButton Command40{Frame5_, "Command40", {.caption = "list?"}};  // fills the two lists
  // The book's pictures.
  forms::ListBox List4{Frame6_, "List4", {.name = "Older list of the book's pictures"}};
  // The chapter's pictures.
  forms::ListBox List5{Frame6_, "List5", {.name = "Older list of the chapter's pictures"}};

 private:
  void Command40_Click();
};

}  // namespace lectern::gallery
