// Makes the view that fits a control's kind.
#pragma once

#include <QWidget>
#include <memory>

#include "forms/control.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

// nullptr for menus and timers, which lie in no panel.
std::unique_ptr<ControlView> MakeView(forms::Control& control, WindowView& window, QWidget& parent);

}  // namespace lectern::desktop
