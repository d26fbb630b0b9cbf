// The row of tool buttons, and the lock that they are: most panels disable the six feature buttons while
// they are open, so that one is open at a time. The exit button is never disabled.
#pragma once

#include "forms/buttons.h"
#include "reader/panels.h"

namespace lectern::reader {

class ToolButtons {
  Panels& panels_;

 public:
  explicit ToolButtons(Panels& panels) : panels_(panels) {}

  void Disable() { Set(false); }
  void Enable() { Set(true); }

  forms::CommandButton Command3{panels_.Picture6, "Command3", {.caption = "&Book Mark"}};     // bookmarks
  forms::CommandButton Command16{panels_.Picture6, "Command16", {.caption = "&Search"}};      // text search
  forms::CommandButton Command8{panels_.Picture6, "Command8", {.caption = "&Concordance"}};   // concordance
  forms::CommandButton Command2{panels_.Picture6, "Command2", {.caption = "Tri&via"}};        // trivia
  forms::CommandButton Command14{panels_.Picture6, "Command14", {.caption = "&Notes"}};       // notes
  forms::CommandButton Command17{panels_.Picture6, "Command17", {.caption = "&Dictionary"}};  // dictionary
  forms::CommandButton Command1{panels_.Picture6, "Command1", {.caption = "E&xit"}};          // exit

 private:
  void Set(bool enabled);
};

}  // namespace lectern::reader
