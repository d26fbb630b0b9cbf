// A page of text that a person writes, pastes and alters, and sends to the printer as it stands in its
// window.
#pragma once

#include "forms/buttons.h"
#include "forms/text_controls.h"
#include "forms/window.h"

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

}  // namespace lectern::aids
