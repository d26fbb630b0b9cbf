// Picture boxes: panels that show a picture and what is drawn on it. One that a person draws on is drawn on
// by keys too.
#include <QPainter>
#include <algorithm>

#include "forms/picture_box.h"
#include "ui/desktop/app/pictures.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/panel_view.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

namespace {

// A pen for drawing by keys: a cross on the surface. The arrows move it by 8 pixels, with Shift by 1; Space
// puts it down and lifts it. While it is down, each pixel on its way is a movement of the mouse with its left
// button held.
class KeyPen {
 public:
  // What a press, or a movement with the button held, does at that pixel of the surface.
  struct Strokes {
    std::function<void(const QPoint&)> press;
    std::function<void(const QPoint&)> move;
  };

  // Returns whether the key is the pen's.
  bool HandleKey(const QKeyEvent& key, QWidget& surface, const Strokes& strokes) {
    constexpr int kStep = 8;
    const QPoint way = DirectionOf(key.key());
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
    for (int steps = modifiers == Qt::ShiftModifier ? 1 : kStep; steps > 0; --steps) {
      const QPoint next = place_ + way;
      if (!seen.contains(next)) break;
      place_ = next;
      if (down_) strokes.move(next);
    }
    surface.update(Cross());
    return true;
  }

  // The keyboard has come to the surface. The pen is where it was last, unless that is out of sight.
  void TakeUp(QWidget& surface) {
    const QRect seen = surface.visibleRegion().boundingRect();
    surface.update(Cross());
    if (place_.isNull() || !seen.contains(place_)) place_ = seen.center();
    in_hand_ = true;
    surface.update(Cross());
  }

  // The focus has gone elsewhere, or the mouse has taken over.
  void PutAway(QWidget& surface) {
    if (!in_hand_) return;
    in_hand_ = false;
    down_ = false;
    surface.update(Cross());
  }

  // The cross is dark with a light edge, to be seen on every colour.
  void Paint(QPainter& painter) const {
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

 private:
  static constexpr int kArm = 9;  // pixels of the cross, from its middle
  static constexpr int kGap = 3;  // pixels left free in its middle, where one draws

  QRect Cross() const {
    constexpr int kReach = kArm + 2;
    return QRect(place_, place_).adjusted(-kReach, -kReach, kReach, kReach);
  }

  QPoint place_;
  bool in_hand_ = false;
  bool down_ = false;
};

class PictureBoxView : public ViewOf<forms::PictureBox, PanelView> {
  using ViewOf::ViewOf;

  void Apply() override {
    PanelView::Apply();
    const forms::Area changed = Control().TakeChangedArea();
    if (!changed.Empty()) {
      Widget()->update(changed.left, changed.top, changed.right - changed.left, changed.bottom - changed.top);
    }
    if (pointer_picture_ != Control().MouseIcon()) {
      pointer_picture_ = Control().MouseIcon;
      if (Control().MousePointer == forms::kPointerCustom) Widget()->setCursor(Pointer());
    }
  }

  QCursor Pointer() const override {
    const bool is_custom = Control().MousePointer == forms::kPointerCustom;
    return is_custom ? PointerOf(Control().MouseIcon()) : PanelView::Pointer();
  }

  void Paint(QPainter& painter, const QRect& exposed) override {
    if (const forms::Bitmap& shown = Control().Shown(); !shown.Empty()) {
      painter.setRenderHint(QPainter::SmoothPixmapTransform);
      const QRect part = exposed.intersected(QRect(0, 0, shown.Width(), shown.Height()));
      painter.drawImage(part, ImageOf(shown), part);
    }
    if (Control().BorderStyle != 0) PaintEdges(painter);
    pen_.Paint(painter);
  }

  forms::MouseEvent InScale(forms::MouseEvent mouse) const override {
    if (Control().ScaleMode != forms::kScalePixels) return mouse;
    mouse.x /= forms::kTwipsPerPixel;
    mouse.y /= forms::kTwipsPerPixel;
    return mouse;
  }

  bool HandleKey(const QKeyEvent& key) override {
    if (!IsSurface()) return PanelView::HandleKey(key);
    const auto press = [this](const QPoint& place) {
      Act([this, mouse = LeftButtonAt(place)] { Control().PersonPresses(mouse); });
    };
    const auto move = [this](const QPoint& place) {
      Act([this, mouse = LeftButtonAt(place)] { Control().PersonMoves(mouse); });
    };
    return pen_.HandleKey(key, *Widget(), {press, move});
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == Widget() && IsSurface()) {
      const QEvent::Type type = event->type();
      if (type == QEvent::FocusOut || type == QEvent::MouseButtonPress) pen_.PutAway(*Widget());
      if (type == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<const QFocusEvent&>(*event).reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) pen_.TakeUp(*Widget());
      }
    }
    return PanelView::eventFilter(watched, event);
  }

  forms::MouseEvent LeftButtonAt(const QPoint& place) const {
    forms::MouseEvent mouse;
    mouse.button = 1;
    mouse.x = place.x() * forms::kTwipsPerPixel;
    mouse.y = place.y() * forms::kTwipsPerPixel;
    return InScale(mouse);
  }

  KeyPen pen_;
  forms::Picture pointer_picture_;  // as applied
};

}  // namespace

ViewMaker* const kMakePictureBoxView = MakeViewOf<PictureBoxView, forms::PictureBox>;

}  // namespace lectern::desktop
