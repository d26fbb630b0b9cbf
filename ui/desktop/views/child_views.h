// The views of the controls in a window or panel. If they overlap, figures are at the bottom, then labels,
// then controls that take input, then panels, with the panel that was shown last on top.
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
  // The widgets become children of `parent`, which outlives this or is destroyed just before.
  ChildViews(forms::Container& container, WindowView& window, QWidget& parent);
  ~ChildViews();

  const std::vector<std::unique_ptr<ControlView>>& All() const { return views_; }

  // The view of that widget, here or in a panel here; nullptr if there is none.
  ControlView* Find(const QWidget& widget) const;

  // Whether `question` is true for one of these views or of the views inside them. Stops at the first.
  bool Any(const std::function<bool(ControlView&)>& question) const;

  void MarkStale();
  void Recolour();
  void Stack();  // the widgets here and inside them

  // Appends the stops of the Tab key, line by line and from left to right. Returns whether anything here can
  // be used, even if only with the mouse.
  bool AppendInTabOrder(std::vector<ControlView*>& order) const;

 private:
  QWidget& parent_;
  std::vector<std::unique_ptr<ControlView>> views_;
};

void SetTabOrder(const std::vector<ControlView*>& order);

}  // namespace lectern::desktop
