// The panel with a second pane of text. Nothing opens it; the font settings keep its pane in step with the
// first, and its button closes it.
#pragma once

#include "core/forms/buttons.h"
#include "core/forms/label.h"
#include "core/forms/rich_text_box.h"
#include "core/panels.h"

namespace lectern::core {

class SecondPane {
 public:
  explicit SecondPane(Panels& panels);

  forms::RichTextBox RTXT2;
  forms::Label Label36;
  forms::CommandButton Command34;
};

}  // namespace lectern::core
