#include "ui/desktop/views/key_pen.h"

#include <QPointer>
#include <algorithm>

namespace lectern::desktop {

namespace {

constexpr int kArm = 9;   // pixels of the cross, from its middle
constexpr int kGap = 3;   // left free in its middle, so that what is drawn there is seen
constexpr int kStep = 8;  // of an arrow without Shift

QPoint Way(int key) {
  switch (key) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {};
  }
}

}  // namespace

QRect KeyPen::Cross() const {
  constexpr int kReach = kArm + 2;
  return QRect(place_, place_).adjusted(-kReach, -kReach, kReach, kReach);
}

// It is where it was last, unless that cannot be seen any more.
void KeyPen::TakeUp(QWidget& surface) {
  const QRect seen = surface.visibleRegion().boundingRect();
  surface.update(Cross());
  if (place_.isNull() || !seen.contains(place_)) place_ = seen.center();
  in_hand_ = true;
  surface.update(Cross());
}

bool KeyPen::HandleKey(const QKeyEvent& key, QWidget& surface, const Strokes& strokes) {
  const QPoint way = Way(key.key());
  const bool is_space = key.key() == Qt::Key_Space && key.modifiers() == Qt::NoModifier;
  const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
  const bool moves = !way.isNull() && (modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier);
  const QRect seen = surface.visibleRegion().boundingRect();
  if ((!is_space && !moves) || seen.isEmpty()) return false;
  TakeUp(surface);
  if (is_space) {
    if (key.isAutoRepeat()) return true;
    down_ = !down_;
    if (down_) strokes.press(place_);
    return true;
  }
  const QPointer<QWidget> guard(&surface);
  for (int steps = modifiers == Qt::ShiftModifier ? 1 : kStep; steps > 0; --steps) {
    const QPoint next = place_ + way;
    if (!seen.contains(next)) break;
    place_ = next;
    if (!down_) continue;
    strokes.move(next);
    if (guard == nullptr) return true;
  }
  surface.update(Cross());
  return true;
}

void KeyPen::PutAway(QWidget& surface) {
  if (!in_hand_) return;
  in_hand_ = false;
  down_ = false;
  surface.update(Cross());
}

// Dark in light, to be seen on every colour.
void KeyPen::Paint(QPainter& painter) const {
  if (!in_hand_) return;
  painter.save();
  for (const auto& [colour, width] : {std::pair(Qt::white, 3), std::pair(down_ ? Qt::red : Qt::black, 1)}) {
    painter.setPen(QPen(colour, width));
    for (const QPoint way : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
      painter.drawLine(place_ + way * kGap, place_ + way * kArm);
    }
  }
  painter.restore();
}

}  // namespace lectern::desktop
