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

#include "gallery/browser.h"

namespace lectern::gallery {

class Maintenance {
 public:
  Maintenance(PictureCatalogue& the_catalogue, Browser& the_browser, reader::Panels& the_panels);

  // Writes the help's note on changing books into the help pane; the window that owns both joins it.
  std::function<void()> HelpChangingBook;

  forms::CommandButton Command26;
  forms::Label Label2;
  forms::ControlArray<forms::Label> Label3;
  forms::FileListBox File3;  // the files of the pictures
  forms::SSCommand SSCommand1;
  forms::SSCommand SSCommand2;
  forms::CommandButton Command49;
  forms::CommandButton Command45;
  forms::CommandButton Command47;
  forms::CommandButton Command48;
  forms::CommandButton Command46;

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

  PictureCatalogue& catalogue_;
  Browser& browser_;
  reader::Panels& panels_;
  reader::Reader& reader_;
};

}  // namespace lectern::gallery
