// Where the keyboard's input goes in a window. The forms know one control that has the focus, Qt knows one
// widget; whichever side moves it, the other follows.
#pragma once

#include <QWidget>

#include "core/forms/window.h"
#include "ui/desktop/events.h"

namespace lectern::desktop {

class ChildViews;
class ControlView;

class WindowFocus {
 public:
  // The views find what a widget belongs to; they, the frame and the window outlive this.
  WindowFocus(forms::Window& window, Events& events, QWidget& frame, const ChildViews& views)
      : window_(window), events_(events), frame_(frame), views_(views) {}

  // A handler gave the focus to a control.
  void IsWanted() { is_wanted_ = true; }

  // After an event.
  void Settle();

  // Qt moved the focus to another widget of the window.
  void Arrived();

  // From the panel that was opened last to what the window is for, and back.
  void ChangeBetweenPanels();

 private:
  ControlView* ViewWithFocus() const;
  ControlView* FrontPanel() const;  // that was opened last and is still open; nullptr for none
  void TakeToFrontPanel();
  void TakeToMainControl();

  forms::Window& window_;
  Events& events_;
  QWidget& frame_;
  const ChildViews& views_;
  const forms::PlacedControl* shown_ = nullptr;
  bool is_wanted_ = false;
};

// The view of a control that is to be seen; nullptr for any other.
ControlView* SeenViewOf(const forms::Control* control);

}  // namespace lectern::desktop
