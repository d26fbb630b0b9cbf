// Panes of text with runs of style. One that is only read is set as a page, with room between the lines; one
// that is edited is a plain sheet, which takes in and edits a text of many megabytes without a pause.
#pragma once

#include <memory>

#include "forms/rich_text_box.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

std::unique_ptr<ControlView> MakeRichTextView(forms::RichTextBox& pane, WindowView& window, QWidget& parent);

}  // namespace lectern::desktop
