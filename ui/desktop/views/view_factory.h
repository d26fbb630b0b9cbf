// Makes the view for a control. Each kind of view is defined in its own file.
#pragma once

#include <QWidget>
#include <memory>

#include "forms/control.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

using ViewMaker = std::unique_ptr<ControlView>(forms::Control& control, WindowView& window, QWidget& parent);

// Returns nullptr for menus and timers, which are in no panel.
ViewMaker MakeView;

template <class View, class Kind>
std::unique_ptr<ControlView> MakeViewOf(forms::Control& control, WindowView& window, QWidget& parent) {
  return std::make_unique<View>(dynamic_cast<Kind&>(control), window, parent);
}

// Each maker requires a control of its kind.
extern ViewMaker* const kMakeButtonView;  // button_views.cpp
extern ViewMaker* const kMakeOptionView;
extern ViewMaker* const kMakeLabelView;  // label_view.cpp
extern ViewMaker* const kMakeImageView;  // figure_views.cpp
extern ViewMaker* const kMakeShapeView;
extern ViewMaker* const kMakeLineView;
extern ViewMaker* const kMakeProgressView;
extern ViewMaker* const kMakeOneLineView;  // field_views.cpp
extern ViewMaker* const kMakeSeveralLinesView;
extern ViewMaker* const kMakeComboView;
extern ViewMaker* const kMakeDriveView;
extern ViewMaker* const kMakeListView;  // list_views.cpp
extern ViewMaker* const kMakeFolderView;
extern ViewMaker* const kMakeScrollBarView;   // scroll_bar_view.cpp
extern ViewMaker* const kMakeFrameView;       // panel_view.cpp
extern ViewMaker* const kMakePictureBoxView;  // picture_box_view.cpp
extern ViewMaker* const kMakeReadingPage;     // text/reading_page.cpp
extern ViewMaker* const kMakeEditor;          // text/editor.cpp

}  // namespace lectern::desktop
