// Makes the view that fits a control's kind. How a kind of control is shown is known in its own file alone.
#pragma once

#include <QWidget>
#include <memory>

#include "forms/control.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

// Returns nullptr for menus and timers, which lie in no panel.
std::unique_ptr<ControlView> MakeView(forms::Control& control, WindowView& window, QWidget& parent);

// What each kind's file provides.
// Requires: the control is of that kind.
using ViewMaker = std::unique_ptr<ControlView>(forms::Control& control, WindowView& window, QWidget& parent);
ViewMaker MakeButtonView;      // button_views.cpp
ViewMaker MakeOptionView;      //
ViewMaker MakeLabelView;       // label_view.cpp
ViewMaker MakeImageView;       // figure_views.cpp
ViewMaker MakeShapeView;       //
ViewMaker MakeLineView;        //
ViewMaker MakeProgressView;    //
ViewMaker MakeTextBoxView;     // field_views.cpp
ViewMaker MakeComboView;       //
ViewMaker MakeDriveView;       //
ViewMaker MakeListView;        // list_views.cpp
ViewMaker MakeFolderView;      //
ViewMaker MakeScrollBarView;   // scroll_bar_view.cpp
ViewMaker MakeFrameView;       // panel_view.cpp
ViewMaker MakePictureBoxView;  // picture_box_view.cpp
ViewMaker MakeRichTextView;    // text/: a page that is read, or a sheet that is edited

// The body of a maker.
template <class View, class Kind>
std::unique_ptr<ControlView> MakeViewOf(forms::Control& control, WindowView& window, QWidget& parent) {
  return std::make_unique<View>(dynamic_cast<Kind&>(control), window, parent);
}

}  // namespace lectern::desktop
