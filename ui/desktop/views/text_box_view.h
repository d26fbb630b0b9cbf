// Boxes of plain text, of one line and of several.
#pragma once

#include <memory>

#include "forms/text_controls.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

std::unique_ptr<ControlView> MakeTextBoxView(forms::TextBox& box, WindowView& window, QWidget& parent);

}  // namespace lectern::desktop
