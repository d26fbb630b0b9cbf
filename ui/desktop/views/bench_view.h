// A second window for chosen controls that lie outside their own window, so that the mouse can reach them.
// The controls, their handlers, their places in the model and their window do not change.
//
// Single controls are in a row at the top, and each panel is on a separate page. A hidden panel is replaced
// by a button that opens it again.
#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/window.h"
#include "ui/desktop/views/control_view.h"
#include "ui/desktop/views/window_view.h"

class QHBoxLayout;
class QPushButton;
class QTabWidget;

namespace lectern::desktop {

class BenchView {
 public:
  // Shows the named controls, and opens the panels among them. The window and its view outlive this.
  // Requires: the window has all of the controls and has been shown.
  BenchView(forms::Window& window, WindowView& view, const std::vector<std::string>& controls);
  ~BenchView();

  QWidget& Frame() { return *frame_; }

  // After an event: stacks overlapping widgets and sets the tab order.
  void Settle();

 private:
  void AddPage(forms::PlacedControl& panel, QWidget& holder);

  forms::Window& window_;
  WindowView& view_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::vector<std::pair<const forms::PlacedControl*, QPushButton*>> openers_;  // of the pages
  std::unique_ptr<QWidget> frame_;  // destroyed before the views, as in WindowView
  QHBoxLayout* row_;
  QTabWidget* pages_;
};

}  // namespace lectern::desktop
