#include "ui/desktop/views/clickable_view.h"

#include <QCoreApplication>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "ui/desktop/layout/window_focus.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/painted_widget.h"

namespace lectern::desktop {

namespace {

constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr int kEasyToHit = 24;  // pixels across

// A stroke needs every movement of the mouse. Otherwise only the latest place counts, and movements must not
// pile up. Qt may merge movements before it delivers the press, so this is set before the press.
void WantEveryMovement(bool wanted) {
  QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, !wanted);
}

}  // namespace

void ClickableView::PrepareForInput(QWidget& widget) {
  if (IsButton()) {
    const bool waits = IsInRow() && Control().Index() > 0;
    widget.setFocusPolicy(waits ? Qt::ClickFocus : Qt::StrongFocus);
    if (auto* spoken = dynamic_cast<Spoken*>(&widget)) spoken->press = [this] { PressByKey(kLeftButton); };
  }
  // Drawing with the mouse does not take the focus.
  if (IsSurface()) widget.setFocusPolicy(Qt::TabFocus);
  widget.setMouseTracking(static_cast<bool>(Control().MouseMove));
  if (IsButton() && Place().width() < kEasyToHit) widget.parentWidget()->installEventFilter(this);
}

void ClickableView::PressByKey(int button) {
  if (Control().Click) return Act([this] { Control().PersonClicks(); });
  forms::MouseEvent mouse;
  mouse.button = button;
  mouse.x = Control().Width / 2;
  mouse.y = Control().Height / 2;
  Act([this, mouse] { Control().PersonPresses(mouse); });
}

bool ClickableView::HandleKey(const QKeyEvent& key) {
  if (!IsButton()) return false;
  if (IsInRow() && key.modifiers() == Qt::NoModifier && MoveInRow(key.key())) return true;
  const bool is_left = (key.key() == Qt::Key_Space || KeyCode(key) == forms::kEnterKey) &&
                       (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const bool is_right =
      !Control().Click &&
      (key.key() == Qt::Key_Menu || (key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier));
  if (!is_left && !is_right) return false;
  if (!key.isAutoRepeat()) PressByKey(is_left ? kLeftButton : kRightButton);
  return true;
}

std::vector<ControlView*> ClickableView::Row() const {
  std::vector<ControlView*> row;
  for (const forms::Control* sibling : Control().Parent().Children()) {
    if (sibling->Name() != Control().Name()) continue;
    if (ControlView* view = SeenViewOf(sibling)) row.push_back(view);
  }
  return row;
}

// Moves the focus to the nearest view in that direction. Returns whether the key is an arrow.
bool ClickableView::MoveInRow(int key) {
  const QPoint here = Place().center();
  const QPoint way = DirectionOf(key);
  if (way.isNull()) return false;
  ControlView* nearest = nullptr;
  int least = 0;
  for (ControlView* other : Row()) {
    const QPoint from_here = other->Place().center() - here;
    const int along = QPoint::dotProduct(from_here, way);
    if (along <= 0 || along < from_here.manhattanLength()) continue;
    if (nearest == nullptr || along < least) {
      nearest = other;
      least = along;
    }
  }
  if (nearest != nullptr) nearest->Widget()->setFocus(Qt::OtherFocusReason);
  return true;
}

bool ClickableView::Pressed(const QMouseEvent& event) {
  if (!Control().Click && !Control().MouseDown) return false;
  pressed_ = event.button() == Qt::LeftButton;
  if (IsSurface()) stroke_ = event.position().toPoint();
  const forms::MouseEvent mouse = InScale(ToMouseEvent(event, event.button()));
  Act([this, mouse] { Control().PersonPresses(mouse); });
  return true;
}

bool ClickableView::Released(const QMouseEvent& event) {
  stroke_.reset();
  if (!std::exchange(pressed_, false) || event.button() != Qt::LeftButton) return false;
  if (Control().Click && Widget()->rect().contains(event.position().toPoint())) {
    Act([this] { Control().Click(); });
  }
  return true;
}

bool ClickableView::Moved(const QMouseEvent& event) {
  if (!Control().MouseMove) return false;
  Act([this, &event] { MovesTo(event); });
  return true;
}

// The windowing system reports a fast mouse in leaps. A stroke is moved pixel by pixel along them, so that it
// is a line and not a row of dots.
void ClickableView::MovesTo(const QMouseEvent& event) {
  forms::MouseEvent mouse = ToMouseEvent(event, event.buttons());
  const QPoint end(static_cast<int>(mouse.x / forms::kTwipsPerPixel),
                   static_cast<int>(mouse.y / forms::kTwipsPerPixel));
  const QPoint start = stroke_.value_or(end);
  if (stroke_) stroke_ = end;
  const QPoint way = end - start;
  const int steps = std::max({std::abs(way.x()), std::abs(way.y()), 1});
  for (int step = 1; step <= steps; ++step) {
    const QPoint place = start + way * (static_cast<double>(step) / steps);
    mouse.x = place.x() * forms::kTwipsPerPixel;
    mouse.y = place.y() * forms::kTwipsPerPixel;
    Control().PersonMoves(InScale(mouse));
  }
}

// Whether the place in the parent is the widget's own, widened to both sides until it is easy to hit.
bool ClickableView::IsBeside(const QPoint& place) const {
  if (!IsSeen()) return false;
  const QRect own = Widget()->geometry();
  const int wider = (kEasyToHit - own.width() + 1) / 2;
  return own.adjusted(-wider, 0, wider, 0).contains(place) &&
         Widget()->parentWidget()->childAt(place) == nullptr;
}

bool ClickableView::eventFilter(QObject* watched, QEvent* event) {
  if (watched != Widget() && event->type() == QEvent::MouseButtonPress) {
    const auto& press = static_cast<const QMouseEvent&>(*event);
    if (press.button() != Qt::LeftButton || !IsBeside(press.position().toPoint())) return false;
    PressByKey(kLeftButton);
    return true;
  }
  if (watched == Widget()) {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
        return Pressed(static_cast<const QMouseEvent&>(*event));
      case QEvent::MouseButtonDblClick: {
        const bool taken = Pressed(static_cast<const QMouseEvent&>(*event));
        if (Control().DblClick) Act([this] { Control().DblClick(); });
        return taken;
      }
      case QEvent::MouseButtonRelease:
        return Released(static_cast<const QMouseEvent&>(*event));
      case QEvent::FocusIn:
        if (!IsInRow()) break;
        for (const ControlView* other : Row()) {  // the Tab key will stop at this one
          other->Widget()->setFocusPolicy(other == this ? Qt::StrongFocus : Qt::ClickFocus);
        }
        break;
      case QEvent::MouseMove:
        return Moved(static_cast<const QMouseEvent&>(*event));
      case QEvent::Enter:
        WantEveryMovement(IsSurface());
        break;
      case QEvent::Leave:  // Qt sends it only when no button is held
        WantEveryMovement(false);
        break;
      default:
        break;
    }
  }
  return ControlView::eventFilter(watched, event);
}

}  // namespace lectern::desktop
