#include "ui/desktop/layout/window_focus.h"

#include <QGuiApplication>
#include <algorithm>
#include <utility>

#include "ui/desktop/views/child_views.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

namespace {

// Whether the control lies in the panel; false for nullptr.
bool LiesIn(const forms::Control* control, const forms::Control& panel) {
  const auto* const wanted = dynamic_cast<const forms::Container*>(&panel);
  if (control == nullptr) return false;
  for (const forms::Container* at = &control->Parent(); at != nullptr; at = at->Outer()) {
    if (at == wanted) return true;
  }
  return false;
}

bool IsOpenedPanel(ControlView& view) {
  return view.IsSeen() && view.Children() != nullptr && view.Control().ShownAt() != 0;
}

}  // namespace

ControlView* SeenViewOf(const forms::Control* control) {
  if (control == nullptr) return nullptr;
  auto* const view = dynamic_cast<ControlView*>(control->AttachedView());
  return view != nullptr && view->IsSeen() ? view : nullptr;
}

void WindowFocus::Settle() {
  const forms::PlacedControl* const before = staying_;
  if (std::exchange(is_wanted_, false) || window_.Focus() != shown_) {
    shown_ = staying_ = window_.Focus();
    if (ControlView* view = SeenViewOf(shown_)) view->Widget()->setFocus(Qt::OtherFocusReason);
  }
  if (frame_.focusWidget() == nullptr) TakeToMainControl();
  FollowPanels(before);
  // What had the focus may be disabled or hidden now. Qt takes whatever comes next, which may be the exit
  // button.
  if (window_.Focus() != nullptr && window_.Focus()->RefusesPerson() != forms::Refusal::kNone) {
    TakeToPanel(FrontPanel());
  }
  Arrived();
}

// Panels that are open when the window is first seen are part of its face.
void WindowFocus::FollowPanels(const forms::PlacedControl* before) {
  const bool is_first_time = !opened_;
  if (is_first_time) opened_.emplace();
  const forms::PlacedControl* back_to = nullptr;
  for (auto opened = opened_->end(); opened != opened_->begin();) {
    --opened;
    if (SeenViewOf(opened->panel) != nullptr) continue;
    if (LiesIn(window_.Focus(), *opened->panel) || LiesIn(back_to, *opened->panel)) back_to = opened->before;
    if (LiesIn(before, *opened->panel)) before = opened->before;
    opened = opened_->erase(opened);
  }
  ControlView* entered = nullptr;
  for (const auto& view : views_.All()) {
    if (!IsOpenedPanel(*view)) continue;
    const forms::PlacedControl* const panel = &view->Control();
    const bool is_known = std::any_of(opened_->begin(), opened_->end(),
                                      [panel](const Opened& opened) { return opened.panel == panel; });
    if (is_known) continue;
    opened_->push_back({panel, before});
    if (entered == nullptr || panel->ShownAt() > entered->Control().ShownAt()) entered = view.get();
  }
  if (is_first_time) return;
  if (entered != nullptr && !LiesIn(window_.Focus(), entered->Control())) {
    TakeToPanel(entered);
  } else if (entered == nullptr && back_to != nullptr) {
    TakeBackTo(back_to);
  }
}

void WindowFocus::Arrived() {
  if (events_.AtWork()) return;
  ControlView* const view = ViewWithFocus();
  if (view == nullptr || &view->Control() == window_.Focus()) return;
  shown_ = &view->Control();
  if (!IsBeingPressed(*shown_)) staying_ = shown_;
  events_.Deliver(window_, [&] { window_.PersonMovesFocus(&view->Control()); });
}

bool WindowFocus::IsBeingPressed(const forms::PlacedControl& control) const {
  if (!presses_ && QGuiApplication::mouseButtons() == Qt::NoButton) return false;
  switch (control.GetKind()) {
    case forms::Kind::kCommandButton:
    case forms::Kind::kSSCommand:
    case forms::Kind::kLabel:
    case forms::Kind::kImage:
    case forms::Kind::kPictureBox:
      return true;
    default:
      return false;
  }
}

void WindowFocus::TakeToPress(ControlView& view) {
  presses_ = true;
  view.Widget()->setFocus(Qt::ShortcutFocusReason);
  presses_ = false;
}

void WindowFocus::ChangeBetweenPanels(int step) {
  const std::vector<ControlView*> panels = OpenPanels();
  const auto has_focus = [this](const ControlView* panel) {
    return panel->Widget()->isAncestorOf(frame_.focusWidget());
  };
  // Stop 0 is the main control.
  const auto found = std::find_if(panels.begin(), panels.end(), has_focus);
  const auto stops = static_cast<int>(panels.size()) + 1;
  const int here = found == panels.end() ? 0 : static_cast<int>(found - panels.begin()) + 1;
  const int next = (here + step + stops) % stops;
  next == 0 ? TakeToMainControl() : TakeToPanel(panels[static_cast<std::size_t>(next) - 1]);
}

ControlView* WindowFocus::ViewWithFocus() const {
  for (const QWidget* at = frame_.focusWidget(); at != nullptr; at = at->parentWidget()) {
    if (ControlView* view = views_.Find(*at)) return view;
  }
  return nullptr;
}

std::vector<ControlView*> WindowFocus::OpenPanels() const {
  std::vector<ControlView*> panels;
  for (const auto& view : views_.All()) {
    if (IsOpenedPanel(*view)) panels.push_back(view.get());
  }
  std::sort(panels.begin(), panels.end(), [](const ControlView* a, const ControlView* b) {
    return a->Control().ShownAt() > b->Control().ShownAt();
  });
  return panels;
}

ControlView* WindowFocus::FrontPanel() const {
  const std::vector<ControlView*> panels = OpenPanels();
  return panels.empty() ? nullptr : panels.front();
}

void WindowFocus::TakeBackTo(const forms::PlacedControl* control) {
  ControlView* const view = SeenViewOf(control);
  if (view != nullptr && view->Widget()->isEnabled()) {
    view->Widget()->setFocus(Qt::OtherFocusReason);
  } else {
    TakeToPanel(FrontPanel());
  }
}

// Moves the focus to the panel's first control, skipping the button that closes it.
void WindowFocus::TakeToPanel(ControlView* panel) {
  std::vector<ControlView*> order;
  if (panel != nullptr) panel->Children()->AppendInTabOrder(order);
  std::erase_if(order, [](const ControlView* view) { return !view->Widget()->isEnabled(); });
  if (order.empty()) return TakeToMainControl();
  const auto first = std::find_if(order.begin(), order.end(),
                                  [](const ControlView* view) { return !view->Control().IsCancelButton(); });
  (first == order.end() ? order.front() : *first)->Widget()->setFocus(Qt::OtherFocusReason);
}

// The main control is the largest one that a click can give the focus to.
void WindowFocus::TakeToMainControl() {
  std::vector<ControlView*> order;
  views_.AppendInTabOrder(order);
  const auto area = [](const ControlView* view) {
    const QWidget& widget = *view->Widget();
    const bool can_be_main = widget.isEnabled() && (widget.focusPolicy() & Qt::ClickFocus) != 0;
    return can_be_main ? view->Place().width() * view->Place().height() : 0;
  };
  const auto largest =
      std::max_element(order.begin(), order.end(),
                       [&](const ControlView* a, const ControlView* b) { return area(a) < area(b); });
  if (largest != order.end()) (*largest)->Widget()->setFocus(Qt::OtherFocusReason);
}

}  // namespace lectern::desktop
