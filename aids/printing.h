// A page of text that a person writes, pastes and alters, and sends to the printer as it stands in its
// window.
#pragma once

#include <functional>

#include "forms/buttons.h"
#include "forms/figures.h"
#include "forms/picture_box.h"
#include "forms/text_controls.h"
#include "forms/window.h"
#include "reader/reader.h"

namespace lectern::aids {

class PrintedPage {
 public:
  explicit PrintedPage(forms::Window& window);

  void Form_Load();

  forms::Window& form;
  forms::TextBox Text1{form, "Text1", {.text = "Text1", .name = "Page", .multi_line = true}};  // the page
  forms::CommandButton Command1{form, "Command1", {.caption = "Print"}};                       // prints
  // Hides the window.
  forms::CommandButton Command2{form, "Command2", {.caption = "Cancel", .is_cancel = true}};

 private:
  void Command1_Click();
};

// The door to the page that is printed: a button among the bookmarks.
class PagePrinting {
  forms::PictureBox& Picture1_;
  reader::Reader& reader_;

 public:
  // `page` makes the window of the page where there is none yet.
  PagePrinting(reader::Reader& the_reader, forms::PictureBox& Picture1, std::function<forms::Window&()> page);

  // Opens the page to print.
  forms::CommandButton Command30{Picture1_, "Command30", {.caption = "Print Page"}};

 private:
  void Command30_Click();

  std::function<forms::Window&()> page_;
};

// A picture in a window of its own, with a button that sends it to the printer. No control opens the window:
// it stands ready for whoever has a picture to print.
class PrintedPicture {
 public:
  explicit PrintedPicture(forms::Window& window);

  // Shows the window around the picture, in the middle of the screen. Without a picture it shows none, in the
  // size that it had.
  void PrintPaintPicture(const forms::Picture& picture);

  forms::Window& form;
  forms::Image Image1{form, "Image1"};                                    // the picture
  forms::CommandButton Command1{form, "Command1", {.caption = "Print"}};  // prints

 private:
  void Command1_Click();
};

}  // namespace lectern::aids
