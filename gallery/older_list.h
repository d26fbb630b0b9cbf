// An older way of listing the book's pictures, kept beside PictureCatalogue's: one list of the whole book and
// one of the chapter. Its button is the keeper's; the second form of it, which nothing but the driver
// calls, can start the slide show.
#pragma once

#include "gallery/picture_catalogue.h"

namespace lectern::gallery {

class OlderList {
  reader::Panels& panels_;
  PictureCatalogue& catalogue_;
  reader::Reader& reader_;

 public:
  OlderList(PictureCatalogue& the_catalogue, reader::Panels& panels);

  void ListChapterPictures();

  forms::CommandButton Command40{panels_.Frame5, "Command40", {.caption = "list?"}};  // fills the two lists
  // The book's pictures.
  forms::ListBox List4{panels_.Frame6, "List4", {.name = "Older list of the book's pictures"}};
  // The chapter's pictures.
  forms::ListBox List5{panels_.Frame6, "List5", {.name = "Older list of the chapter's pictures"}};

 private:
  void Command40_Click();
};

}  // namespace lectern::gallery
