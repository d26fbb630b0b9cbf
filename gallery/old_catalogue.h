// The catalogue in its older form, `pics.dat`: plain lines, a credit ("PICTURES BY: …") for the pictures
// below it, then a pair of lines a picture, its name and its place. Nothing of the reader's uses it any
// more; these are the routine that turns it into today's catalogue, and two that show a chapter's picture
// straight from it, by the older rule: the first picture at or behind the chapter.
#pragma once

#include "forms/containers.h"
#include "gallery/picture_catalogue.h"
#include "gallery/viewer.h"

namespace lectern::gallery {

class OldCatalogue {
 public:
  OldCatalogue(PictureCatalogue& the_catalogue, Viewer& the_viewer);

  void ConvertPicsDat();  // replaces `pics2.dat`
  void ShowPicsDatPicture();

 private:
  void Command38_Click();

  bool ShowAtOrBehindChapter(const std::string& line, std::string name);
  std::string OldFile() const;

  PictureCatalogue& catalogue_;
  Viewer& viewer_;
  reader::Reader& reader_;
  // Shows the chapter's picture of the old catalogue.
  forms::CommandButton Command38{
      reader_.form,
      "Command38",
      {.caption = "Command38", .name = "Show the chapter's picture of the old catalogue"}};
};

// An older way of listing the book's pictures, kept beside PictureCatalogue's: one list of the whole book and
// one of the chapter. Its button is the keeper's; the second form of it, which nothing but the driver
// calls, can start the slide show.
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
