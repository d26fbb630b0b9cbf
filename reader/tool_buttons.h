// The row of tool buttons, and the lock that they are: most panels disable the six feature buttons while
// they are open, so that one is open at a time. The exit button is never disabled.
#pragma once

#include "forms/buttons.h"
#include "reader/panels.h"

namespace lectern::reader {

class ToolButtons {
 public:
  explicit ToolButtons(Panels& panels);

  void Disable() { Set(false); }
  void Enable() { Set(true); }

  forms::CommandButton Command3;   // bookmarks
  forms::CommandButton Command16;  // text search
  forms::CommandButton Command8;   // concordance
  forms::CommandButton Command2;   // trivia
  forms::CommandButton Command14;  // notes
  forms::CommandButton Command17;  // dictionary
  forms::CommandButton Command1;   // exit

 private:
  void Set(bool enabled);
};

}  // namespace lectern::reader
