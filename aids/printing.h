// The two windows that print themselves: a page of text and a picture.
#pragma once

#include <functional>

#include "forms/buttons.h"
#include "forms/figures.h"
#include "forms/picture_box.h"
#include "forms/text_controls.h"
#include "forms/window.h"
#include "reader/reader.h"

namespace lectern::aids {

// A page of text that a person edits and prints.
class PrintedPage {
 public:
  explicit PrintedPage(forms::Window& window);

  void Form_Load();

  forms::Window& form;
  forms::TextBox Text1{form, "Text1", {.text = "Text1", .name = "Page", .multi_line = true}};  // the page
  forms::CommandButton Command1{form, "Command1", {.caption = "Print"}};
  forms::CommandButton Command2{form, "Command2", {.caption = "Cancel", .is_cancel = true}};

 private:
  void Command1_Click();
};

// The button on the bookmark panel that opens the page.
class PagePrinting {
  forms::PictureBox& Picture1_;
  reader::Reader& reader_;

 public:
  // `page` creates the window of the page on first use.
  PagePrinting(reader::Reader& the_reader, forms::PictureBox& Picture1, std::function<forms::Window&()> page);

  forms::CommandButton Command30{Picture1_, "Command30", {.caption = "Print Page"}};

 private:
  void Command30_Click();

  std::function<forms::Window&()> page_;
};

// A window with one picture and a button that prints it. No control opens it; only the routine
// PrintPaintPicture does.
class PrintedPicture {
 public:
  explicit PrintedPicture(forms::Window& window);

  // Shows the picture in the middle of the screen. If it is empty, the window keeps its size.
  void PrintPaintPicture(const forms::Picture& picture);

  forms::Window& form;
  forms::Image Image1{form, "Image1"};  // the picture
  forms::CommandButton Command1{form, "Command1", {.caption = "Print"}};
};

}  // namespace lectern::aids
