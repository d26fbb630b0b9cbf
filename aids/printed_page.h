// A page of text that a person writes, pastes and alters, and sends to the printer as it stands in its
// window.
#pragma once

#include "forms/buttons.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace lectern::aids {

class PrintedPage {
 public:
  explicit PrintedPage(forms::Window& window);

  void Form_Load();

  forms::Window& form;
  forms::TextBox Text1;
  forms::CommandButton Command1;
  forms::CommandButton Command2;

 private:
  void Command1_Click();
};

}  // namespace lectern::aids
