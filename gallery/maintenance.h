// The keeper's bench: the tools that look after the catalogue of pictures. Its frame stands off the window
// and is hidden besides, so that no reader comes to it; whoever keeps the catalogue reaches it by
// `lectern-keeper` or the driver.
//
// All actions work on the whole of `pics2.dat`, every book, although they start from the picture that is
// picked on the strip. Nothing traps a failure, and nothing is told of one: it ends the program.
//
// Four of them rewrite the catalogue: record by record into `pics22.dat`, then the old file is deleted, its
// last version staying under `backup`, and the new one takes its name. At every moment the catalogue is
// either in place, or whole in `pics22.dat` with the old one under `backup`.
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

  // Writes the help's note on changing books into the help pane; the window that owns both joins it.
  std::function<void()> HelpChangingBook = [] {};

  forms::CommandButton Command26{Frame5_, "Command26", {.caption = "pictures"}};  // shows the panel
  // Shows the help on changing books.
  forms::Label Label2{Frame5_, "Label2", {.caption = "pictures"}};
  // Before the boxes of the picked record.
  forms::ControlArray<forms::Label> Label3{
      Frame5_, "Label3", {{.caption = "Name"}, {.caption = "Book Chapter: Verce"}, {.caption = "Author"}}};
  // Files of the pictures.
  forms::FileListBox File3{Frame6_, "File3", {.name = "Files of the pictures"}};
  // Moves the picked picture towards the start.
  forms::SSCommand SSCommand1{Frame5_, "SSCommand1", {.caption = "‹", .name = "Move towards the start"}};
  // Moves it towards the end.
  forms::SSCommand SSCommand2{Frame5_, "SSCommand2", {.caption = "›", .name = "Move towards the end"}};
  // Adds a picture to the catalogue.
  forms::CommandButton Command49{Frame5_, "Command49", {.caption = "Add 2 Picture File"}};
  // Removes a duplicate.
  forms::CommandButton Command45{Frame5_, "Command45", {.caption = "Remove Duplicate"}};
  // Removes every record of the picture.
  forms::CommandButton Command47{Frame5_, "Command47", {.caption = "Remove All"}};
  forms::CommandButton Command48{Frame5_, "Command48", {.name = "No action"}};  // does nothing
  // Closes the panel.
  forms::CommandButton Command46{Frame5_, "Command46", {.caption = "Close", .is_cancel = true}};

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
