// The views of what lies in a window or panel. Of what lies over one another the figures and labels are
// lowest, then whatever takes input, then panels, of these the last that was shown on top. The keyboard goes
// through them as the eye does, line by line and from the left to the right.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "core/forms/control.h"

namespace lectern::desktop {

class ControlView;
class WindowView;

class ChildViews {
 public:
  ChildViews(forms::Container& container, WindowView& window, QWidget& parent);
  ~ChildViews();

  const std::vector<std::unique_ptr<ControlView>>& All() const { return views_; }

  void MarkStale();
  void Recolour();

  // Of these and of all that lies in them.
  void Stack();
  void AppendInTabOrder(std::vector<ControlView*>& order) const;

 private:
  QWidget& parent_;
  std::vector<std::unique_ptr<ControlView>> views_;
};

}  // namespace lectern::desktop
