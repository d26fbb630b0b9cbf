// The older form of the catalogue, `pics.dat`: a line of credit ("PICTURES BY: …") for the pictures below it,
// then two lines for each picture, its name and its place. One routine converts it to the current catalogue;
// two show a picture from it by the older rule: the first picture at or after the chapter.
#pragma once

#include <functional>
#include <string>

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
  void ShowChapterPicture(const std::function<bool(const std::string& line)>& is_in_book);
  std::string OldFile() const;

  PictureCatalogue& catalogue_;
  Viewer& viewer_;
  reader::Reader& reader_;
  static constexpr std::string_view kPurpose = "Show the chapter's picture of the old catalogue";
  forms::CommandButton Command38{reader_.form, "Command38", {.caption = "Command38", .name = kPurpose}};
};

// An older way to list the pictures: one list for the book and one for the chapter.
class OlderList {
  forms::Frame& Frame5_;
  forms::Frame& Frame6_;
  PictureCatalogue& catalogue_;
  reader::Reader& reader_;

 public:
  OlderList(PictureCatalogue& the_catalogue, forms::Frame& Frame5, forms::Frame& Frame6);

  void ListChapterPictures();  // starts the slide show if there is more than one

  forms::CommandButton Command40{Frame5_, "Command40", {.caption = "list?"}};  // fills the two lists
  forms::ListBox List4{Frame6_, "List4", {.name = "Older list of the book's pictures"}};     // of the book
  forms::ListBox List5{Frame6_, "List5", {.name = "Older list of the chapter's pictures"}};  // of the chapter

 private:
  void Command40_Click();
};

}  // namespace lectern::gallery
