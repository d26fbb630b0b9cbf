// The views of what lies in a window or panel. Of what lies over one another the figures and labels are
// lowest, then whatever takes input, then panels, of these the last that was shown on top. The keyboard goes
// through them as the eye does, line by line and from the left to the right.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "forms/control.h"

namespace lectern::desktop {

class ControlView;
class WindowView;

class ChildViews {
 public:
  ChildViews(forms::Container& container, WindowView& window, QWidget& parent);
  ~ChildViews();

  const std::vector<std::unique_ptr<ControlView>>& All() const { return views_; }

  // The view that made the widget, here or in what lies here; nullptr for none.
  ControlView* Find(const QWidget& widget) const;

  // Asks these and all that lies in them, until one says yes; whether one did.
  bool Any(const std::function<bool(ControlView&)>& question) const;

  void MarkStale();
  void Recolour();

  // Of these and of all that lies in them.
  void Stack();
  bool AppendInTabOrder(std::vector<ControlView*>& order) const;  // whether any of them is used at all

 private:
  QWidget& parent_;
  std::vector<std::unique_ptr<ControlView>> views_;
};

}  // namespace lectern::desktop
