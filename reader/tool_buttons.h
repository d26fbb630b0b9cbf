// The row of tool buttons. Most panels disable the six feature buttons while they are open, so that only one
// is open at a time. The exit button is never disabled.
#pragma once

#include "forms/buttons.h"
#include "forms/picture_box.h"

namespace lectern::reader {

class ToolButtons {
  forms::PictureBox& Picture6_;

 public:
  explicit ToolButtons(forms::PictureBox& Picture6) : Picture6_(Picture6) {}

  void Disable() { Set(false); }
  void Enable() { Set(true); }

  forms::CommandButton Command3{Picture6_, "Command3", {.caption = "&Book Mark"}};     // bookmarks
  forms::CommandButton Command16{Picture6_, "Command16", {.caption = "&Search"}};      // text search
  forms::CommandButton Command8{Picture6_, "Command8", {.caption = "&Concordance"}};   // concordance
  forms::CommandButton Command2{Picture6_, "Command2", {.caption = "Tri&via"}};        // trivia
  forms::CommandButton Command14{Picture6_, "Command14", {.caption = "&Notes"}};       // notes
  forms::CommandButton Command17{Picture6_, "Command17", {.caption = "&Dictionary"}};  // dictionary
  forms::CommandButton Command1{Picture6_, "Command1", {.caption = "E&xit"}};          // exit

 private:
  void Set(bool enabled) {
    for (forms::CommandButton* button :
         {&Command3, &Command16, &Command8, &Command2, &Command14, &Command17}) {
      button->Enabled = enabled;
    }
  }
};

}  // namespace lectern::reader
