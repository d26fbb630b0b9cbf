#include "ui/desktop/views/child_views.h"

#include <algorithm>

#include "ui/desktop/layout/places.h"
#include "ui/desktop/views/control_view.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

namespace {

enum class Layer { kFigure, kLabel, kInput, kPanel };

Layer StackingLayerOf(const forms::Control& control) {
  using enum forms::Kind;
  const forms::Kind kind = control.GetKind();
  if (kind == kShape || kind == kLine) return Layer::kFigure;
  if (kind == kLabel || kind == kImage) return Layer::kLabel;
  return kind == kFrame || kind == kPictureBox ? Layer::kPanel : Layer::kInput;
}

bool LiesBelow(const ControlView* a, const ControlView* b) {
  const Layer layer_of_a = StackingLayerOf(a->Control());
  const Layer layer_of_b = StackingLayerOf(b->Control());
  if (layer_of_a != layer_of_b) return layer_of_a < layer_of_b;
  return layer_of_a == Layer::kPanel && a->Control().ShownAt() < b->Control().ShownAt();
}

}  // namespace

ChildViews::ChildViews(forms::Container& container, WindowView& window, QWidget& parent) : parent_(parent) {
  for (forms::Control* control : container.Children()) {
    if (auto view = MakeView(*control, window, parent)) views_.push_back(std::move(view));
  }
  MarkStale();
}

ChildViews::~ChildViews() = default;

bool ChildViews::Any(const std::function<bool(ControlView&)>& question) const {
  return std::any_of(views_.begin(), views_.end(), [&](const std::unique_ptr<ControlView>& view) {
    const ChildViews* const inner = view->Children();
    return question(*view) || (inner != nullptr && inner->Any(question));
  });
}

ControlView* ChildViews::Find(const QWidget& widget) const {
  ControlView* found = nullptr;
  Any([&](ControlView& view) {
    if (view.Widget() == &widget) found = &view;
    return found != nullptr;
  });
  return found;
}

void ChildViews::MarkStale() {
  for (const auto& view : views_) view->Changed();
}

void ChildViews::Recolour() {
  for (const auto& view : views_) view->Recolour();
}

void ChildViews::Stack() {
  std::vector<ControlView*> wanted;
  for (const auto& view : views_) {
    if (view->IsSeen()) wanted.push_back(view.get());
  }
  std::stable_sort(wanted.begin(), wanted.end(), LiesBelow);
  // Widgets that are already in order stay; the others are raised one after another.
  auto next = wanted.begin();
  for (QObject* child : parent_.children()) {
    if (next != wanted.end() && (*next)->Widget() == child) ++next;
  }
  for (; next != wanted.end(); ++next) (*next)->Widget()->raise();
  const auto lowest = std::find_if(wanted.begin(), wanted.end(), [](const ControlView* view) {
    return StackingLayerOf(view->Control()) == Layer::kPanel;
  });
  for (ControlView* view : wanted) {
    if (lowest != wanted.end()) view->Stacked(*(*lowest)->Widget());
    if (ChildViews* inner = view->Children()) inner->Stack();
  }
}

// Leaves out figures: one behind other controls would join all their lines to one.
bool ChildViews::AppendInTabOrder(std::vector<ControlView*>& order) const {
  std::vector<std::vector<ControlView*>> stops;
  std::vector<QRect> places;
  for (const auto& view : views_) {
    if (!view->IsSeen()) continue;
    std::vector<ControlView*> stop;
    if (view->Widget()->focusPolicy() != Qt::NoFocus) stop.push_back(view.get());
    const ChildViews* const inner = view->Children();
    const bool holds_any = inner != nullptr && inner->AppendInTabOrder(stop);
    if (stop.empty() && !holds_any && !view->Control().MouseDown) continue;
    stops.push_back(std::move(stop));
    places.push_back(view->Place());
  }
  for (const std::size_t i : ReadingOrder(places))
    order.insert(order.end(), stops[i].begin(), stops[i].end());
  return !places.empty();
}

void SetTabOrder(const std::vector<ControlView*>& order) {
  for (std::size_t i = 1; i < order.size(); ++i) {
    QWidget::setTabOrder(order[i - 1]->Widget(), order[i]->Widget());
  }
}

}  // namespace lectern::desktop
