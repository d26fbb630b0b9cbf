// Where the keyboard's input goes in a window. The forms know one control that has the focus, Qt knows one
// widget; whichever side moves it, the other follows. A panel that opens takes the focus to its first
// control, and gives it back when it closes.
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
  // The views find what a widget belongs to; they, the frame and the window outlive this.
  WindowFocus(forms::Window& window, Events& events, QWidget& frame, const ChildViews& views)
      : window_(window), events_(events), frame_(frame), views_(views) {}

  // A handler gave the focus to a control.
  void IsWanted() { is_wanted_ = true; }

  // After an event.
  void Settle();

  // Qt moved the focus to another widget of the window.
  void Arrived();

  // Takes the focus to what is about to be pressed by its access key.
  void TakeToPress(ControlView& view);

  // From the panel that was opened last to what the window is for, and back.
  void ChangeBetweenPanels();

 private:
  // A panel that was opened over the window, and what had the focus before.
  struct Opened {
    const forms::PlacedControl* panel;
    const forms::PlacedControl* before;
  };

  ControlView* ViewWithFocus() const;
  ControlView* FrontPanel() const;  // that was opened last and is still open; nullptr for none
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
  // Where the focus last came to stay. Coming to a button in order to press it is not staying there: what the
  // press opens gives the focus back to where it was before.
  const forms::PlacedControl* staying_ = nullptr;
  std::optional<std::vector<Opened>> opened_;  // in the order of opening; none until the window was seen
  bool is_wanted_ = false;
  bool presses_ = false;  // by an access key
};

// The view of a control that is to be seen; nullptr for any other.
ControlView* SeenViewOf(const forms::Control* control);

}  // namespace lectern::desktop
