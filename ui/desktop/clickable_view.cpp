#include "ui/desktop/clickable_view.h"

#include <QCoreApplication>
#include <utility>

#include "ui/desktop/keys.h"
#include "ui/desktop/spoken.h"
#include "ui/desktop/window_view.h"

namespace lectern::desktop {

namespace {

// A stroke is made of every movement of the mouse; whatever else follows it wants its latest place, so that
// nothing piles up. Movements are put together as they arrive, which may be before a press is delivered: so
// it has to be said before the press.
void WantEveryMovement(bool wanted) {
  QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, !wanted);
}

}  // namespace

void ClickableView::PrepareForInput(QWidget& widget) {
  if (Control().Click) {
    widget.setFocusPolicy(Qt::StrongFocus);
    if (auto* spoken = dynamic_cast<Spoken*>(&widget)) {
      spoken->press = [this] { Act([this] { Control().PersonClicks(); }); };
    }
  }
  widget.setMouseTracking(static_cast<bool>(Control().MouseMove));
}

bool ClickableView::HandleKey(const QKeyEvent& key) {
  const bool presses = key.key() == Qt::Key_Space || KeyCode(key) == forms::kEnterKey;
  if (!presses || !Control().Click || key.modifiers() != Qt::NoModifier) return false;
  if (!key.isAutoRepeat()) Act([this] { Control().PersonClicks(); });
  return true;
}

bool ClickableView::Pressed(const QMouseEvent& event) {
  if (!Control().Click && !Control().MouseDown) return false;
  pressed_ = event.button() == Qt::LeftButton;
  const forms::MouseEvent mouse = InScale(ToMouseEvent(event, event.button()));
  Act([this, mouse] { Control().PersonPresses(mouse); });
  return true;
}

bool ClickableView::Released(const QMouseEvent& event) {
  if (!std::exchange(pressed_, false) || event.button() != Qt::LeftButton) return false;
  if (Control().Click && Widget()->rect().contains(event.position().toPoint())) {
    Act([this] { Control().Click(); });
  }
  return true;
}

bool ClickableView::Moved(const QMouseEvent& event) {
  if (!Control().MouseMove) return false;
  const forms::MouseEvent mouse = InScale(ToMouseEvent(event, event.buttons()));
  Act([this, mouse] { Control().PersonMoves(mouse); });
  return true;
}

bool ClickableView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == Widget() && !GetWindow().IsAbandoned()) {
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
      case QEvent::MouseMove:
        return Moved(static_cast<const QMouseEvent&>(*event));
      case QEvent::Enter:
        WantEveryMovement(Control().MouseDown && Control().MouseMove);
        break;
      case QEvent::Leave:  // comes only when no button is held down any more
        WantEveryMovement(false);
        break;
      default:
        break;
    }
  }
  return ControlView::eventFilter(watched, event);
}

}  // namespace lectern::desktop
