// The menu bar of a window and its entries.
#pragma once

#include <QMenuBar>
#include <memory>
#include <vector>

#include "forms/containers.h"
#include "ui/desktop/app/events.h"

namespace lectern::desktop {

class WindowView;

class MenuBarView {
 public:
  MenuBarView(forms::Window& window, WindowView& view, QWidget& frame);
  ~MenuBarView();

  // Places the bar at the top of the window. Returns its height in pixels.
  int Place(int width);

  void OpenFirst();
  QMenuBar& Bar() const { return *bar_; }

 private:
  class Entry;
  class Letters;
  void AddEntries(forms::Container& from, WindowView& view, QWidget& to);

  QMenuBar* bar_;
  std::vector<std::unique_ptr<Entry>> entries_;
};

}  // namespace lectern::desktop
