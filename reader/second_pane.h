// The panel with a second pane of text. Nothing opens it; the font settings keep its pane in step with the
// first, and its button closes it.
#pragma once

#include "forms/buttons.h"
#include "forms/label.h"
#include "forms/rich_text_box.h"
#include "reader/panels.h"

namespace lectern::reader {

class SecondPane {
  Panels& panels_;

 public:
  explicit SecondPane(Panels& panels);

  // The text.
  forms::RichTextBox RTXT2{
      panels_.Picture4, "RTXT2", {.name = "Text of the other version", .read_only = true}};
  forms::Label Label36{panels_.Picture4, "Label36"};  // name of the version
  // Closes the pane.
  forms::CommandButton Command34{panels_.Picture4, "Command34", {.caption = "Close", .is_cancel = true}};
};

}  // namespace lectern::reader
