// An older way of listing the book's pictures, kept beside PictureCatalogue's: one list of the whole book and
// one of the chapter. Its button is the keeper's; the second form of it, which nothing but the driver
// calls, can start the slide show.
#pragma once

#include "gallery/picture_catalogue.h"

namespace lectern::gallery {

class OlderList {
 public:
  OlderList(PictureCatalogue& the_catalogue, reader::Panels& panels);

  void ListChapterPictures();

  forms::CommandButton Command40;
  forms::ListBox List4;  // the book's pictures
  forms::ListBox List5;  // the chapter's

 private:
  void Command40_Click();

  PictureCatalogue& catalogue_;
  reader::Reader& reader_;
};

}  // namespace lectern::gallery
