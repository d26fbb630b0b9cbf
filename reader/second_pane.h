// The panel with a second pane of text. Nothing opens it; the font settings keep its pane in step with the
// first, and its button closes it.
#pragma once

#include "forms/buttons.h"
#include "forms/picture_box.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"

namespace lectern::reader {

class SecondPane {
  forms::PictureBox& Picture4_;

 public:
  explicit SecondPane(forms::PictureBox& Picture4);

  // The text.
  forms::RichTextBox RTXT2{Picture4_, "RTXT2", {.name = "Text of the other version", .read_only = true}};
  forms::Label Label36{Picture4_, "Label36"};  // name of the version
  // Closes the pane.
  forms::CommandButton Command34{Picture4_, "Command34", {.caption = "Close", .is_cancel = true}};
};

}  // namespace lectern::reader
