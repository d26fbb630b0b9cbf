// The catalogue in its older form, `pics.dat`: plain lines, a credit ("PICTURES BY: …") for the pictures
// below it, then a pair of lines a picture, its name and its place. Nothing of the reader's uses it any
// more; these are the routine that turns it into today's catalogue, and two that show a chapter's picture
// straight from it, by the older rule: the first picture at or behind the chapter.
#pragma once

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

}  // namespace lectern::gallery
