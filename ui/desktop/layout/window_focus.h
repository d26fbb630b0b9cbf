// Where the keyboard's input goes in a window. The forms know one control with the focus, Qt knows one
// widget; when one side moves it, the other follows. A panel that opens takes the focus to its first control,
// and gives it back when it closes.
#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "forms/window.h"
#include "ui/desktop/app/events.h"

namespace lectern::desktop {

class ChildViews;
class ControlView;

class WindowFocus {
 public:
  // The window and the views outlive this. The frame may go just before, in silence.
  WindowFocus(forms::Window& window, Events& events, QWidget& frame, const ChildViews& views)
      : window_(window), events_(events), frame_(frame), views_(views) {}

  // A handler gave the focus to a control.
  void IsWanted() { is_wanted_ = true; }

  // After an event.
  void Settle();

  // Qt has moved the focus to another widget of the window.
  void Arrived();

  // Moves the focus to a button that is about to be pressed by its access key.
  void TakeToPress(ControlView& view);

  // Moves the focus from the window's main control to the panel that was opened last, on to the one before,
  // and so on back to the main control; with a step of -1 the other way round.
  void ChangeBetweenPanels(int step);

 private:
  // A panel that was opened over the window, and the control that had the focus before.
  struct Opened {
    const forms::PlacedControl* panel;
    const forms::PlacedControl* before;
  };

  ControlView* ViewWithFocus() const;
  std::vector<ControlView*> OpenPanels() const;  // the last one first
  ControlView* FrontPanel() const;               // the open panel that was opened last; nullptr for none
  void FollowPanels(const forms::PlacedControl* before);
  bool IsBeingPressed(const forms::PlacedControl& control) const;
  void TakeBackTo(const forms::PlacedControl* control);
  void TakeToPanel(ControlView* panel);
  void TakeToMainControl();

  forms::Window& window_;
  Events& events_;
  QWidget& frame_;
  const ChildViews& views_;
  const forms::PlacedControl* shown_ = nullptr;
  // The control where the focus last stayed. It does not stay on a button that was only pressed: a panel that
  // the button opens gives the focus back to where it was before.
  const forms::PlacedControl* staying_ = nullptr;
  std::optional<std::vector<Opened>> opened_;  // in order; empty optional until the window was seen
  bool is_wanted_ = false;
  bool presses_ = false;  // by an access key
};

// The view of a control that is visible; nullptr for any other.
ControlView* SeenViewOf(const forms::Control* control);

}  // namespace lectern::desktop
