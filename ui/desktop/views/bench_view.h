// The keeper's bench: chosen controls that stand off a window, in a second window where the mouse can reach
// them. They are the same controls with the same handlers; neither their places in the model nor the window
// itself change.
//
// Single controls stand in a row at the top, and each panel on a page of its own. A panel that is hidden can
// be opened again by the button in its place.
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
  // Shows the controls of these names, and opens the panels among them. The window and its view outlive this.
  // Requires: the window has all of the controls, and has been shown.
  BenchView(forms::Window& window, WindowView& view, const std::vector<std::string>& controls);
  ~BenchView();

  QWidget& Frame() { return *frame_; }

  // After an event: stacks what overlaps, and puts the Tab key's stops in order.
  void Settle();

 private:
  QWidget& HolderFor(const forms::PlacedControl& control);
  void AddPage(forms::PlacedControl& panel, QWidget& holder);

  forms::Window& window_;
  WindowView& view_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::vector<std::pair<const forms::PlacedControl*, QPushButton*>> openers_;  // of the pages
  std::unique_ptr<QWidget> frame_;  // goes before the views, as in WindowView
  QHBoxLayout* row_;
  QTabWidget* pages_;
};

}  // namespace lectern::desktop
