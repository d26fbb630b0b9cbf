#include "ui/desktop/views/panel_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "forms/containers.h"
#include "forms/window.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/painted_widget.h"
#include "ui/desktop/views/view_factory.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

constexpr int kShadow = 30;       // pixels around a panel that floats
constexpr int kShadowFalls = 8;   // how much lower it lies
constexpr int kTitleHeight = 52;  // of a panel beside the text
constexpr int kTitleLeft = 22;

// A soft edge around the middle, which is covered by the panel.
void PaintShadow(QPainter& painter, const QRect& /*exposed*/) {
  const QRectF all = static_cast<const QWidget*>(painter.device())->rect();
  const auto colour = [](double height) {  // of the shadow, from 1 at the panel to 0
    constexpr double kStrength = 0.18;
    QColor black(Qt::black);
    black.setAlphaF(static_cast<float>(kStrength * height * height));
    return black;
  };
  const auto fill = [&](QGradient&& gradient, const QRectF& area) {
    constexpr int kStops = 8;
    for (int i = 0; i <= kStops; ++i) {
      const double at = static_cast<double>(i) / kStops;
      gradient.setColorAt(at, colour(1 - at));
    }
    painter.fillRect(area, gradient);
  };
  const double reach = kShadow + kPanelCorner;
  const QRectF inner = all.adjusted(reach, reach, -reach, -reach);
  for (const QPointF corner : {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()}) {
    const QPointF begin(corner.x() == inner.left() ? all.left() : corner.x(),
                        corner.y() == inner.top() ? all.top() : corner.y());
    fill(QRadialGradient(corner, reach), QRectF(begin, QSizeF(reach, reach)));
  }
  const auto edge = [&](const QPointF& from, const QPointF& to, const QRectF& area) {
    fill(QLinearGradient(from, to), area);
  };
  edge(inner.topLeft(), {inner.left(), all.top()}, {inner.left(), all.top(), inner.width(), reach});
  edge(inner.bottomLeft(), {inner.left(), all.bottom()},
       {inner.left(), inner.bottom(), inner.width(), reach});
  edge(inner.topLeft(), {all.left(), inner.top()}, {all.left(), inner.top(), reach, inner.height()});
  edge(inner.topRight(), {all.right(), inner.top()}, {inner.right(), inner.top(), reach, inner.height()});
}

class FrameView : public ViewOf<forms::Frame, PanelView> {
  using ViewOf::ViewOf;

  void Apply() override {
    PanelView::Apply();
    Widget()->update();
  }

  // Paints the caption at the upper edge. On the bench the tab of the page shows it instead.
  void Paint(QPainter& painter, const QRect& /*exposed*/) override {
    if (!FaceLayout::IsMovable(Control()) && !IsInCorner()) {
      painter.save();
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setPen(LineColor(Widget()->palette()));
      painter.drawRoundedRect(OutlineOf(Widget()->rect()), kPanelCorner, kPanelCorner);
      painter.restore();
    }
    const QString caption = ToQString(Control().Caption);
    if (IsInCorner() || caption.trimmed().isEmpty()) return;
    constexpr int kIndent = 16;
    const QFontMetrics metrics(Widget()->font());
    const QRect heading(kIndent, 6, Widget()->width() - 2 * kIndent, metrics.height());
    const QPalette& palette = Widget()->palette();
    painter.setPen(MutedColor(palette.color(QPalette::WindowText), palette.color(QPalette::Window)));
    painter.drawText(heading, Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(caption, Qt::ElideRight, heading.width()));
  }
};

}  // namespace

QWidget* PanelView::Make(QWidget* parent) {
  const bool is_movable = FaceLayout::IsMovable(Control());
  auto* const widget = new PaintedWidget(parent, [this, is_movable](QPainter& painter, const QRect& exposed) {
    if (is_movable) PaintGround(painter);
    Paint(painter, exposed);
    if (is_movable) PaintTitle(painter);
  });
  widget->setAutoFillBackground(!is_movable);
  PrepareForInput(*widget);
  return widget;
}

void PanelView::Refresh() {
  if (FaceLayout::IsMovable(Control())) GetWindow().LayOut();
  ClickableView::Refresh();
  if (Widget() == nullptr || !FaceLayout::IsMovable(Control())) return;
  const bool floats = IsSeen() && Floats();
  if (shadow_ == nullptr && floats) shadow_ = MakeFigure(Widget()->parentWidget(), PaintShadow);
  if (shadow_ == nullptr) return;
  shadow_->setGeometry(
      Widget()->geometry().adjusted(-kShadow, -kShadow, kShadow, kShadow).translated(0, kShadowFalls));
  if (shadow_->isHidden() == floats) GetWindow().NeedsArranging();
  shadow_->setVisible(floats);
}

bool PanelView::Floats() const {
  return FaceLayout::IsMovable(Control()) && !GetWindow().Layout().StandsBeside(Control());
}

// Below all panels: a shadow never falls on what stands in another one.
void PanelView::Stacked(QWidget& lowest_panel) {
  if (shadow_ != nullptr) shadow_->stackUnder(&lowest_panel);
}

void PanelView::PaintGround(QPainter& painter) const {
  const QPalette& palette = Widget()->palette();
  painter.save();
  if (Floats()) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(LineColor(palette));
    painter.setBrush(palette.color(QPalette::Window));
    painter.drawRoundedRect(OutlineOf(Widget()->rect()), kPanelCorner, kPanelCorner);
  } else {
    const QRect area = Widget()->rect();
    painter.fillRect(area, palette.color(QPalette::Window));
    painter.fillRect(area.right(), 0, 1, area.height(), LineColor(palette));
  }
  painter.restore();
}

// Beside the text, a panel that says nothing itself is headed by its name. The dots show that it can be
// moved.
void PanelView::PaintTitle(QPainter& painter) const {
  if (Floats() || Control().GetArrangement()->anchor == forms::Anchor::kRight) return;
  const QPalette& palette = Widget()->palette();
  const QColor ink = palette.color(QPalette::WindowText);
  const bool has_title = std::any_of(
      container_.Children().begin(), container_.Children().end(), [](const forms::Control* child) {
        const auto* const text = dynamic_cast<const forms::PlacedControl*>(child);
        return text != nullptr && text->GetTextRole() == forms::TextRole::kTitle &&
               text->GetArrangement()->top * 2 < kTitleHeight * forms::kTwipsPerPixel;
      });
  const QRect row(kTitleLeft, 0, Widget()->width() - 2 * kTitleLeft, kTitleHeight);
  painter.save();
  if (!has_title) {
    painter.setFont(InPixels(OwnFont(), kTitlePixels, QFont::DemiBold));
    painter.setPen(ink);
    painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, ToQString(Control().AccessibleName()));
    constexpr int kDot = 2;
    constexpr int kApart = 5;
    const QColor muted = MutedColor(ink, palette.color(QPalette::Window));
    for (const int across : {0, 1}) {
      for (const int down : {-1, 0, 1}) {
        painter.fillRect(row.right() - kDot - across * kApart, row.center().y() + down * kApart, kDot, kDot,
                         muted);
      }
    }
  }
  painter.restore();
}

// A panel is moved by any empty part of it, and by its title.
bool PanelView::IsDragged(const QMouseEvent& mouse) {
  const QPoint on_screen = mouse.globalPosition().toPoint();
  switch (mouse.type()) {
    case QEvent::MouseButtonDblClick:
      pressed_.reset();
      GetWindow().PutPanelBack(Control());
      return true;
    case QEvent::MouseButtonPress:
      if (mouse.button() != Qt::LeftButton) return false;
      pressed_ = std::pair(mouse.position().toPoint(), on_screen);
      dragged_ = false;
      return true;
    case QEvent::MouseMove: {
      if (!pressed_ || (mouse.buttons() & Qt::LeftButton) == 0) return false;
      const QPoint way = on_screen - pressed_->second;
      if (!dragged_ && way.manhattanLength() < QApplication::startDragDistance()) return true;
      // What is smaller over the text than beside it stays under the pointer.
      const QSize size = FaceLayout::FloatingSize(Control());
      const QPoint held(std::min(pressed_->first.x(), size.width() - 1),
                        std::min(pressed_->first.y(), size.height() - 1));
      dragged_ = true;
      GetWindow().MovePanel(Control(), Widget()->parentWidget()->mapFromGlobal(on_screen) - held);
      return true;
    }
    case QEvent::MouseButtonRelease:
      pressed_.reset();
      return dragged_;
    default:
      return false;
  }
}

bool PanelView::eventFilter(QObject* watched, QEvent* event) {
  const bool is_free = watched == Widget() && FaceLayout::IsMovable(Control()) && !IsButton() && !IsSurface();
  if (is_free && event->isPointerEvent()) {
    const auto* const mouse = dynamic_cast<const QMouseEvent*>(event);
    if (mouse != nullptr && IsDragged(*mouse)) return true;
  }
  return ClickableView::eventFilter(watched, event);
}

void PanelView::Apply() {
  const QRgb ground = Widget()->palette().color(QPalette::Window).rgb();
  if (!children_) {
    children_ = std::make_unique<ChildViews>(container_, GetWindow(), *Widget());
  } else if (ground != ground_) {
    children_->Recolour();
  }
  ground_ = ground;
  if (std::exchange(shown_at_, Control().ShownAt()) != Control().ShownAt()) GetWindow().NeedsArranging();
}

void PanelView::Resized() {
  if (children_) children_->MarkStale();
}

void PanelView::PaintEdges(QPainter& painter) const {
  const QRect area = Widget()->rect();
  const QRect place = Widget()->geometry();
  const QRect around = Widget()->parentWidget()->rect();
  painter.setPen(Qt::NoPen);
  const QColor line = LineColor(Widget()->palette());
  if (place.top() > around.top()) painter.fillRect(0, 0, area.width(), 1, line);
  if (place.bottom() < around.bottom()) painter.fillRect(0, area.bottom(), area.width(), 1, line);
  if (place.left() > around.left()) painter.fillRect(0, 0, 1, area.height(), line);
  if (place.right() < around.right()) painter.fillRect(area.right(), 0, 1, area.height(), line);
}

ViewMaker* const kMakeFrameView = MakeViewOf<FrameView, forms::Frame>;

}  // namespace lectern::desktop
