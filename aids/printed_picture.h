// A picture in a window of its own, with a button that sends it to the printer. No control opens the window:
// it stands ready for whoever has a picture to print.
#pragma once

#include "forms/buttons.h"
#include "forms/figures.h"
#include "forms/window.h"

namespace lectern::aids {

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
