// The tools that maintain the catalogue of pictures. Their frame is hidden and lies outside the window; it is
// reached with `lectern-keeper` or the driver.
//
// The actions start from the picture selected on the strip, but work on all books in `pics2.dat`. Failures
// are not trapped: they end the program.
//
// Four actions rewrite the catalogue: they copy it record by record to `pics22.dat`, delete the old file,
// which stays under `backup`, and rename the new one. So there is a whole catalogue at every moment.
#pragma once

#include <functional>
#include <string>

#include "forms/containers.h"
#include "gallery/viewer.h"

namespace lectern::gallery {

class Maintenance {
  PictureCatalogue& catalogue_;
  Browser& browser_;
  forms::Frame& Frame5_;
  forms::Frame& Frame6_;
  reader::Reader& reader_;

 public:
  Maintenance(PictureCatalogue& the_catalogue, Browser& the_browser, forms::Frame& Frame5,
              forms::Frame& Frame6);

  // Set by the window: shows the help on changing books.
  std::function<void()> HelpChangingBook = [] {};

  forms::CommandButton Command26{Frame5_, "Command26", {.caption = "pictures"}};  // shows the panel
  forms::Label Label2{Frame5_, "Label2", {.caption = "pictures"}};  // shows the help on changing books
  // The labels of the boxes of the selected record.
  forms::ControlArray<forms::Label> Label3{Frame5_, "Label3", {"Name", "Book Chapter: Verce", "Author"}};
  forms::FileListBox File3{Frame6_, "File3", {.name = "Files of the pictures"}};  // the picture files
  // These move the selected picture.
  forms::SSCommand SSCommand1{Frame5_, "SSCommand1", {.caption = "‹", .name = "Move towards the start"}};
  forms::SSCommand SSCommand2{Frame5_, "SSCommand2", {.caption = "›", .name = "Move towards the end"}};
  forms::CommandButton Command49{Frame5_, "Command49", {.caption = "Add 2 Picture File"}};  // adds a record
  // These remove one record of a picture, and all of them.
  forms::CommandButton Command45{Frame5_, "Command45", {.caption = "Remove Duplicate"}};
  forms::CommandButton Command47{Frame5_, "Command47", {.caption = "Remove All"}};
  forms::CommandButton Command48{Frame5_, "Command48", {.name = "No action"}};  // does nothing
  forms::CommandButton Command46{Frame5_, "Command46", {.caption = "Close", .is_cancel = true}};  // hides

 private:
  void Command49_Click();
  void Command45_Click();
  void Command47_Click();
  void SSCommand1_Click();
  void SSCommand2_Click();
  struct Picked {
    int slot;   // 0 to 4
    int index;  // in the lists
  };
  Picked FindPicked();
  std::string NameAt(int index) { return catalogue_.lstmc(0).List(index); }

  void Rewrite(const std::function<void(const PictureRecord&)>& decide);
  void Keep(const PictureRecord& record);
  void ShowCatalogue(const std::string& page);
  void Move(const std::string& held_name, const std::string& trigger_name);
};

}  // namespace lectern::gallery
