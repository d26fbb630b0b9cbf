// Picture boxes: panels that show a picture and drawings. A user can also draw with the keyboard.
#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "forms/picture_box.h"
#include "ui/desktop/app/pictures.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/panel_view.h"
#include "ui/desktop/views/view_factory.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

// A pen for drawing with the keyboard, shown as a cross. The arrows move it by 8 pixels, or by 1 with Shift.
// Space lowers and lifts it. While it is down, each pixel that it passes counts as a movement of the mouse
// with the left button held.
class KeyPen {
 public:
  // Called for a press, or for a movement with the button held, at a pixel of the surface.
  using Draw = std::function<void(const QPoint& place, bool presses)>;

  // Returns whether the key is the pen's.
  bool HandleKey(const QKeyEvent& key, QWidget& surface, const Draw& draw) {
    constexpr int kStep = 8;
    const QPoint way = DirectionOf(key.key());
    const bool is_space = key.key() == Qt::Key_Space && key.modifiers() == Qt::NoModifier;
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const bool moves = !way.isNull() && (modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier);
    const QRect seen = surface.visibleRegion().boundingRect();
    if ((!is_space && !moves) || seen.isEmpty()) return false;
    Show(surface);
    if (is_space) {
      if (key.isAutoRepeat()) return true;
      down_ = !down_;
      if (down_) draw(place_, true);
      return true;
    }
    for (int steps = modifiers == Qt::ShiftModifier ? 1 : kStep; steps > 0; --steps) {
      const QPoint next = place_ + way;
      if (!seen.contains(next)) break;
      place_ = next;
      if (down_) draw(next, false);
    }
    surface.update(Cross());
    return true;
  }

  // Called when the surface gets the focus by keyboard. The pen keeps its place if that is visible.
  void Show(QWidget& surface) {
    const QRect seen = surface.visibleRegion().boundingRect();
    surface.update(Cross());
    if (place_.isNull() || !seen.contains(place_)) place_ = seen.center();
    shown_ = true;
    surface.update(Cross());
  }

  // Called when the focus leaves or the mouse is used.
  void Hide(QWidget& surface) {
    if (!shown_) return;
    shown_ = false;
    down_ = false;
    surface.update(Cross());
  }

  // The cross is dark with a light edge, so that it is visible on every colour.
  void Paint(QPainter& painter) const {
    if (!shown_) return;
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
  static constexpr int kArm = 9;  // from the centre of the cross, in pixels
  static constexpr int kGap = 3;  // left free at the centre

  QRect Cross() const {
    constexpr int kReach = kArm + 2;
    return QRect(place_, place_).adjusted(-kReach, -kReach, kReach, kReach);
  }

  QPoint place_;
  bool shown_ = false;
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
    const forms::Bitmap& shown = Control().Shown();
    if (IsBackground()) {
      // Paper would glare on a dark page.
      if (!shown.Empty() && !IsDark(QApplication::palette().color(QPalette::Base))) {
        painter.fillRect(exposed, QBrush(ImageOf(shown)));
      }
    } else if (!shown.Empty()) {
      painter.setRenderHint(QPainter::SmoothPixmapTransform);
      const QRect part = exposed.intersected(QRect(0, 0, shown.Width(), shown.Height()));
      painter.drawImage(part, ImageOf(shown), part);
    }
    if (Control().BorderStyle != 0 && !FaceLayout::IsMovable(Control())) PaintEdges(painter);
    if (IsFootOfWindow()) painter.fillRect(0, 0, Widget()->width(), 1, LineColor(Widget()->palette()));
    pen_.Paint(painter);
  }

  // Whether the picture only lies behind the controls of the panel, all over it.
  bool IsBackground() const { return !Control().Children().empty() && !IsSurface(); }

  // A row along the window's lower edge is set off from what is above it.
  bool IsFootOfWindow() const {
    const forms::Anchor anchor = Control().GetAnchor();
    return Control().Parent().Outer() == nullptr &&
           (anchor == forms::Anchor::kBottom || anchor == forms::Anchor::kFoot);
  }

  forms::MouseEvent InScale(forms::MouseEvent mouse) const override {
    if (Control().ScaleMode != forms::kScalePixels) return mouse;
    mouse.x /= forms::kTwipsPerPixel;
    mouse.y /= forms::kTwipsPerPixel;
    return mouse;
  }

  bool HandleKey(const QKeyEvent& key) override {
    if (!IsSurface()) return PanelView::HandleKey(key);
    return pen_.HandleKey(key, *Widget(), [this](const QPoint& place, bool presses) {
      forms::MouseEvent mouse;
      mouse.button = 1;
      mouse.x = place.x() * forms::kTwipsPerPixel;
      mouse.y = place.y() * forms::kTwipsPerPixel;
      mouse = InScale(mouse);
      Act([&] { presses ? Control().PersonPresses(mouse) : Control().PersonMoves(mouse); });
    });
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == Widget() && IsSurface()) {
      const QEvent::Type type = event->type();
      if (type == QEvent::FocusOut || type == QEvent::MouseButtonPress) pen_.Hide(*Widget());
      if (type == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<const QFocusEvent&>(*event).reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) pen_.Show(*Widget());
      }
    }
    return PanelView::eventFilter(watched, event);
  }

  KeyPen pen_;
  forms::Picture pointer_picture_;  // as applied
};

}  // namespace

ViewMaker* const kMakePictureBoxView = MakeViewOf<PictureBoxView, forms::PictureBox>;

}  // namespace lectern::desktop
