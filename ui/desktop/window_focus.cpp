#include "ui/desktop/window_focus.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "ui/desktop/child_views.h"
#include "ui/desktop/control_view.h"

namespace lectern::desktop {

ControlView* SeenViewOf(const forms::Control* control) {
  if (control == nullptr) return nullptr;
  auto* const view = dynamic_cast<ControlView*>(control->AttachedView());
  return view != nullptr && view->IsSeen() ? view : nullptr;
}

void WindowFocus::Settle() {
  if (std::exchange(is_wanted_, false) || window_.Focus() != shown_) {
    shown_ = window_.Focus();
    if (ControlView* view = SeenViewOf(shown_)) view->Widget()->setFocus(Qt::OtherFocusReason);
  }
  if (frame_.focusWidget() == nullptr) TakeToMainControl();
  // What had the focus may be disabled or hidden now, as the button is that opened a panel. Qt takes whatever
  // comes next, which is the exit as soon as anything.
  if (window_.Focus() != nullptr && window_.Focus()->RefusesPerson() != forms::Refusal::kNone) {
    TakeToFrontPanel();
  }
  Arrived();
}

void WindowFocus::Arrived() {
  if (events_.AtWork()) return;
  ControlView* const view = ViewWithFocus();
  if (view == nullptr || &view->Control() == window_.Focus()) return;
  shown_ = &view->Control();
  events_.Deliver(window_, [&] { window_.PersonMovesFocus(&view->Control()); });
}

void WindowFocus::ChangeBetweenPanels() {
  const ControlView* const front = FrontPanel();
  if (front != nullptr && front->Widget()->isAncestorOf(frame_.focusWidget())) {
    TakeToMainControl();
  } else {
    TakeToFrontPanel();
  }
}

ControlView* WindowFocus::ViewWithFocus() const {
  for (const QWidget* at = frame_.focusWidget(); at != nullptr; at = at->parentWidget()) {
    if (ControlView* view = views_.Find(*at)) return view;
  }
  return nullptr;
}

ControlView* WindowFocus::FrontPanel() const {
  ControlView* front = nullptr;
  for (const auto& view : views_.All()) {
    if (!view->IsSeen() || view->Children() == nullptr || view->Control().ShownAt() == 0) continue;
    if (front == nullptr || view->Control().ShownAt() > front->Control().ShownAt()) front = view.get();
  }
  return front;
}

void WindowFocus::TakeToFrontPanel() {
  std::vector<ControlView*> order;
  if (ControlView* front = FrontPanel()) front->Children()->AppendInTabOrder(order);
  std::erase_if(order, [](const ControlView* view) { return !view->Widget()->isEnabled(); });
  if (order.empty()) {
    TakeToMainControl();
  } else {
    order.front()->Widget()->setFocus(Qt::OtherFocusReason);
  }
}

// The largest of the controls is what the window is for.
void WindowFocus::TakeToMainControl() {
  std::vector<ControlView*> order;
  views_.AppendInTabOrder(order);
  const auto area = [](const ControlView* view) {
    return view->Widget()->isEnabled() ? view->Place().width() * view->Place().height() : 0;
  };
  const auto largest =
      std::max_element(order.begin(), order.end(),
                       [&](const ControlView* a, const ControlView* b) { return area(a) < area(b); });
  if (largest != order.end()) (*largest)->Widget()->setFocus(Qt::OtherFocusReason);
}

}  // namespace lectern::desktop
