// The views of what lies in a window or panel. Where they overlap, figures and labels are lowest, then what
// takes input, then panels, of which the last that was shown is on top.
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
  // The widgets become children of `parent`, which outlives this or goes just before.
  ChildViews(forms::Container& container, WindowView& window, QWidget& parent);
  ~ChildViews();

  const std::vector<std::unique_ptr<ControlView>>& All() const { return views_; }

  // The view of that widget, here or in what lies here; nullptr where there is none.
  ControlView* Find(const QWidget& widget) const;

  // Whether the question is answered with yes for one of these or of what lies in them. Stops at the first.
  bool Any(const std::function<bool(ControlView&)>& question) const;

  void MarkStale();
  void Recolour();

  // Stacks the widgets of these and of all that lies in them.
  void Stack();

  // Appends what the Tab key goes through, line by line and from the left to the right. Returns whether a
  // person uses anything here at all, be it with the mouse alone.
  bool AppendInTabOrder(std::vector<ControlView*>& order) const;

 private:
  QWidget& parent_;
  std::vector<std::unique_ptr<ControlView>> views_;
};

// Lets the Tab key go through the views in that order.
void SetTabOrder(const std::vector<ControlView*>& order);

}  // namespace lectern::desktop
