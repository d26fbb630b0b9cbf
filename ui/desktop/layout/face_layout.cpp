#include "ui/desktop/layout/face_layout.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/desktop/layout/places.h"

namespace lectern::desktop {

namespace {

constexpr int kNarrowestPanel = 392;  // beside the text
constexpr int kNarrowestText = 660;   // beside a panel
constexpr int kGoodText = 720;        // what a panel leaves to the text before it becomes wider
constexpr int kNarrowestHalf = 480;   // of two texts side by side

using forms::Anchor;

bool KeepsTo(Anchor anchor, std::initializer_list<Anchor> anchors) {
  return std::find(anchors.begin(), anchors.end(), anchor) != anchors.end();
}

Anchor AnchorOf(const forms::PlacedControl& control, bool arranged) {
  const forms::Arrangement* const arrangement = control.GetArrangement();
  return arranged && arrangement != nullptr ? arrangement->anchor : control.GetAnchor();
}

QRect RectInPixels(double left, double top, double width, double height) {
  const QPoint corner(ToPixels(left), ToPixels(top));
  const QPoint end(ToPixels(left + width), ToPixels(top + height));
  return {corner, QSize(std::max(end.x() - corner.x(), 0), std::max(end.y() - corner.y(), 0))};
}

const forms::PlacedControl* AsControl(const forms::Container& container) {
  return dynamic_cast<const forms::PlacedControl*>(&container);
}

QRect ShareOf(const QRect& base, const QSize& room, const QSize& now) {
  const double across = static_cast<double>(now.width()) / std::max(room.width(), 1);
  const double down = static_cast<double>(now.height()) / std::max(room.height(), 1);
  const double scale = std::min(across, down);
  const QSizeF size = QSizeF(base.size()) * scale;
  const QPointF middle((base.left() + base.width() / 2.0) * across,
                       (base.top() + base.height() / 2.0) * down);
  return QRectF(middle - QPointF(size.width(), size.height()) / 2, size).toRect();
}

QRect MovedBy(Anchor anchor, const QRect& base, int across, int down) {
  QRect place = base;
  if (KeepsTo(anchor, {Anchor::kTopRight, Anchor::kMiddleRight, Anchor::kBottomRight, Anchor::kRight})) {
    place.translate(across, 0);
  }
  if (KeepsTo(anchor, {Anchor::kBottomLeft, Anchor::kBottomCentre, Anchor::kBottomRight, Anchor::kBottom})) {
    place.translate(0, down);
  }
  if (KeepsTo(anchor, {Anchor::kTopCentre, Anchor::kCentre, Anchor::kBottomCentre})) {
    place.translate(across / 2, 0);
  }
  if (KeepsTo(anchor, {Anchor::kMiddleLeft, Anchor::kCentre, Anchor::kMiddleRight})) {
    place.translate(0, down / 2);
  }
  if (KeepsTo(anchor, {Anchor::kTop, Anchor::kBottom, Anchor::kFill})) {
    place.setWidth(std::max(place.width() + across, 0));
  }
  if (KeepsTo(anchor, {Anchor::kLeft, Anchor::kRight, Anchor::kFill})) {
    place.setHeight(std::max(place.height() + down, 0));
  }
  return place;
}

}  // namespace

bool FaceLayout::IsMovable(const forms::PlacedControl& control) {
  const forms::Arrangement* const arrangement = control.GetArrangement();
  return arrangement != nullptr && KeepsTo(arrangement->anchor, {Anchor::kLeft, Anchor::kRight}) &&
         control.Parent().Outer() == nullptr && dynamic_cast<const forms::Container*>(&control) != nullptr;
}

QSize FaceLayout::FloatingSize(const forms::PlacedControl& panel) {
  const QSize size = lectern::desktop::PlaceOf(panel).size();
  const forms::Arrangement* const arrangement = panel.GetArrangement();
  if (!size.isEmpty()) return size;
  return {ToPixels(arrangement->width), ToPixels(arrangement->height)};
}

bool FaceLayout::StandsBeside(const forms::PlacedControl& control) const {
  if (!IsMovable(control) || moved_.contains(&control)) return false;
  return !(control.GetArrangement()->anchor == Anchor::kRight ? regions_.second : regions_.left).isEmpty();
}

// A panel without a size of its own has only its arrangement.
bool FaceLayout::IsArranged(const forms::Container& container) const {
  const forms::PlacedControl* const control = AsControl(container);
  if (control == nullptr) return true;
  if (!IsMovable(*control)) return IsArranged(control->Parent());
  return StandsBeside(*control) || lectern::desktop::PlaceOf(*control).isEmpty();
}

QRect FaceLayout::BasePlaceOf(const forms::PlacedControl& control) const {
  const forms::Arrangement* const arrangement = control.GetArrangement();
  if (arrangement != nullptr && IsArranged(control.Parent()) && !IsMovable(control)) {
    return RectInPixels(arrangement->left, arrangement->top, arrangement->width, arrangement->height);
  }
  return lectern::desktop::PlaceOf(control);
}

QSize FaceLayout::BaseSizeOf(const forms::Container& container) const {
  const forms::PlacedControl* const control = AsControl(container);
  if (control == nullptr) return {ToPixels(window_.ClientWidth()), ToPixels(window_.ClientHeight())};
  if (!IsMovable(*control)) return BasePlaceOf(*control).size();
  if (!IsArranged(container)) return lectern::desktop::PlaceOf(*control).size();
  return {ToPixels(control->GetArrangement()->width), ToPixels(control->GetArrangement()->height)};
}

QSize FaceLayout::SizeOf(const forms::Container& container) const {
  const forms::PlacedControl* const control = AsControl(container);
  return control == nullptr ? regions_.face : PlaceOf(*control).size();
}

QRect FaceLayout::Anchored(const forms::PlacedControl& control) const {
  const QRect base = BasePlaceOf(control);
  const QSize room = BaseSizeOf(control.Parent());
  const QSize now = SizeOf(control.Parent());
  const Anchor anchor = AnchorOf(control, IsArranged(control.Parent()));
  if (anchor == Anchor::kShare) return ShareOf(base, room, now);
  const int across = now.width() - room.width();
  int down = now.height() - room.height();
  if (anchor == Anchor::kFoot) {
    return base.adjusted(0, down - regions_.foot, across, down);
  }
  if (control.Parent().Outer() == nullptr) down -= regions_.foot;
  return MovedBy(anchor, base, across, down);
}

void FaceLayout::FindRoomBeside(const forms::PlacedControl& text) {
  const QRect all = Anchored(text);
  regions_.text = all;
  const forms::PlacedControl* panel = nullptr;  // the one on top
  bool has_second = false;
  for (const forms::Control* child : window_.Children()) {
    const auto* const control = dynamic_cast<const forms::PlacedControl*>(child);
    if (control == nullptr || !control->Visible || !IsMovable(*control)) continue;
    if (moved_.contains(control)) continue;
    if (control->GetArrangement()->anchor == Anchor::kRight) {
      has_second = true;
    } else if (panel == nullptr || control->ShownAt() > panel->ShownAt()) {
      panel = control;
    }
  }
  if (panel != nullptr && all.width() >= kNarrowestPanel + kNarrowestText) {
    const int for_text = has_second ? 2 * kNarrowestHalf : kGoodText;
    const int widest = std::max(ToPixels(panel->GetArrangement()->width), kNarrowestPanel);
    const int width = std::clamp(all.width() - for_text, kNarrowestPanel, widest);
    regions_.left = QRect(all.topLeft(), QSize(width, all.height()));
    regions_.text.setLeft(regions_.left.right() + 1);
  }
  if (!has_second) return;
  if (regions_.text.width() >= 2 * kNarrowestHalf) {
    regions_.second = regions_.text;
    regions_.text.setWidth(regions_.text.width() / 2);
    regions_.second.setLeft(regions_.text.right() + 1);
  } else if (!regions_.left.isEmpty()) {
    regions_.second = regions_.text;
    regions_.text.setHeight(regions_.text.height() / 2);
    regions_.second.setTop(regions_.text.bottom() + 1);
  }
}

bool FaceLayout::Update(const QSize& face) {
  const Regions before = std::exchange(regions_, Regions{});
  regions_.face = face;
  const QSize room = BaseSizeOf(window_);
  text_ = nullptr;
  for (const forms::Control* child : window_.Children()) {
    const auto* const control = dynamic_cast<const forms::PlacedControl*>(child);
    if (control == nullptr) continue;
    if (control->GetAnchor() == Anchor::kFoot) {
      const double share = BasePlaceOf(*control).height() / (2.0 * room.height());
      regions_.foot = static_cast<int>(std::lround(std::max(face.height() - room.height(), 0) * share));
    }
    const bool is_text =
        control->GetKind() == forms::Kind::kRichTextBox && control->GetAnchor() == Anchor::kFill;
    if (is_text && control->GetArrangement() != nullptr) text_ = control;
  }
  if (text_ != nullptr) FindRoomBeside(*text_);
  return regions_ != before;
}

QRect FaceLayout::PlaceOf(const forms::PlacedControl& control) const {
  if (const auto benched = benched_.find(&control); benched != benched_.end()) return {{}, benched->second};
  if (IsMovable(control)) {
    if (StandsBeside(control)) {
      return control.GetArrangement()->anchor == Anchor::kRight ? regions_.second : regions_.left;
    }
    const QSize size = FloatingSize(control);
    const auto moved = moved_.find(&control);
    const QPoint corner = moved == moved_.end() ? Anchored(control).topLeft() : moved->second;
    const QSize spare = regions_.face - size;
    return {QPoint(std::clamp(corner.x(), 0, std::max(spare.width(), 0)),
                   std::clamp(corner.y(), 0, std::max(spare.height(), 0))),
            size};
  }
  return &control == text_ ? regions_.text : Anchored(control);
}

void FaceLayout::Move(const forms::PlacedControl& panel, const QPoint& corner) {
  const QSize spare = regions_.face - FloatingSize(panel);
  moved_[&panel] = QPoint(std::clamp(corner.x(), 0, std::max(spare.width(), 0)),
                          std::clamp(corner.y(), 0, std::max(spare.height(), 0)));
}

}  // namespace lectern::desktop
