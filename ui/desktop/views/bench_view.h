// The keeper's bench: chosen controls that lie off a window, in a second window of their own, so that each
// can be used with the mouse. They are the same controls with the same handlers; where they stand in the
// model does not change, nor does anything in the window itself.
//
// Single controls stand in a row at the top, each panel on a page of its own. A panel that is hidden can be
// opened again by the button in its place. Lives no longer than the window and its view.
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
  // The controls by their names; the panels among them are opened. The window has been shown once.
  BenchView(forms::Window& window, WindowView& view, const std::vector<std::string>& controls);
  ~BenchView();

  QWidget& Frame() { return *frame_; }

  // After an event: puts what lies over one another in order, and what the keyboard goes through.
  void Settle();

 private:
  QWidget& HolderFor(const forms::PlacedControl& control);
  void AddPage(forms::PlacedControl& panel, QWidget& holder);

  forms::Window& window_;
  WindowView& view_;
  std::unique_ptr<QWidget> frame_;
  QHBoxLayout* row_;
  QTabWidget* pages_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::vector<std::pair<const forms::PlacedControl*, QPushButton*>> openers_;  // of the pages
};

}  // namespace lectern::desktop
