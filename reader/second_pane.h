// The panel with a second pane of text. Nothing opens it; the font settings keep its pane in step with the
// first, and its button closes it.
#pragma once

#include "forms/buttons.h"
#include "forms/label.h"
#include "forms/rich_text_box.h"
#include "reader/panels.h"

namespace lectern::reader {

class SecondPane {
 public:
  explicit SecondPane(Panels& panels);

  forms::RichTextBox RTXT2;
  forms::Label Label36;
  forms::CommandButton Command34;
};

}  // namespace lectern::reader
