#include "ui/desktop/views/panel_views.h"

#include <QPainter>

#include "forms/window.h"
#include "ui/desktop/app/pictures.h"
#include "ui/desktop/app/style.h"
#include "ui/desktop/views/painted_widget.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

constexpr int kShadow = 10;  // pixels that it reaches out

void PaintShadow(QPainter& painter, const QRect& /*exposed*/) {
  const auto& widget = *static_cast<const QWidget*>(painter.device());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 9));
  for (int inset = 0; inset < kShadow; ++inset) {
    painter.drawRoundedRect(widget.rect().adjusted(inset, inset, -inset, -inset), kShadow - inset,
                            kShadow - inset);
  }
}

bool IsByTab(const QFocusEvent& event) {
  return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason;
}

}  // namespace

QWidget* PanelView::Make(QWidget* parent) {
  auto* const widget =
      new PaintedWidget(parent, [this](QPainter& painter, const QRect& exposed) { Paint(painter, exposed); });
  widget->setAutoFillBackground(true);
  PrepareForInput(*widget);
  return widget;
}

void PanelView::Refresh() {
  ClickableView::Refresh();
  if (Widget() != nullptr && !GetWindow().IsAbandoned()) CastShadow();
}

// What is there from the start is part of the window's face and lies flat.
void PanelView::CastShadow() {
  if (Control().ShownAt() == 0 || Control().Parent().Outer() != nullptr) return;
  if (shadow_ == nullptr) {
    shadow_ = new PaintedWidget(Widget()->parentWidget(), PaintShadow);
    shadow_->setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  shadow_->setGeometry(Widget()->geometry().adjusted(-kShadow, -kShadow / 2, kShadow, kShadow));
  shadow_->setVisible(IsSeen());
}

void PanelView::Stacked() {
  if (shadow_ != nullptr) shadow_->stackUnder(Widget());
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

void FrameView::Apply() {
  PanelView::Apply();
  Widget()->update();
}

// A heading stands in the frame's upper line, which leaves room for it. On a page of its own the page has it.
void FrameView::Paint(QPainter& painter, const QRect& /*exposed*/) {
  PaintEdges(painter);
  if (StandsInTheCorner()) return;
  const QString caption = ToQString(frame_.Caption);
  if (caption.trimmed().isEmpty()) return;
  constexpr int kIndent = 16;
  const QFontMetrics metrics(Widget()->font());
  const QRect heading(kIndent, 2, Widget()->width() - 2 * kIndent, metrics.height());
  painter.setPen(Widget()->palette().color(QPalette::WindowText));
  painter.drawText(heading, Qt::AlignLeft | Qt::AlignVCenter,
                   metrics.elidedText(caption, Qt::ElideRight, heading.width()));
}

void PictureBoxView::Apply() {
  PanelView::Apply();
  const forms::Area changed = box_.TakeChangedArea();
  if (!changed.Empty()) {
    Widget()->update(changed.left, changed.top, changed.right - changed.left, changed.bottom - changed.top);
  }
  if (icon_ != box_.MouseIcon()) {
    icon_ = box_.MouseIcon;
    if (box_.MousePointer == forms::kPointerCustom) Widget()->setCursor(Pointer());
  }
}

QCursor PictureBoxView::Pointer() const {
  return box_.MousePointer == forms::kPointerCustom ? PointerOf(box_.MouseIcon()) : PanelView::Pointer();
}

void PictureBoxView::Paint(QPainter& painter, const QRect& exposed) {
  if (const forms::Bitmap& shown = box_.Shown(); !shown.Empty()) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect part = exposed.intersected(QRect(0, 0, shown.Width(), shown.Height()));
    painter.drawImage(part, ImageOf(shown), part);
  }
  if (box_.BorderStyle != 0) PaintEdges(painter);
  pen_.Paint(painter);
}

bool PictureBoxView::HandleKey(const QKeyEvent& key) {
  if (!IsSurface()) return PanelView::HandleKey(key);
  const auto press = [this](const QPoint& place) {
    Act([this, mouse = LeftAt(place)] { box_.PersonPresses(mouse); });
  };
  const auto move = [this](const QPoint& place) {
    Act([this, mouse = LeftAt(place)] { box_.PersonMoves(mouse); });
  };
  return pen_.HandleKey(key, *Widget(), {press, move});
}

// The mouse at that pixel, with its left button held.
forms::MouseEvent PictureBoxView::LeftAt(const QPoint& place) const {
  forms::MouseEvent mouse;
  mouse.button = 1;
  mouse.x = place.x() * forms::kTwipsPerPixel;
  mouse.y = place.y() * forms::kTwipsPerPixel;
  return InScale(mouse);
}

bool PictureBoxView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == Widget() && !GetWindow().IsAbandoned() && IsSurface()) {
    const QEvent::Type type = event->type();
    if (type == QEvent::FocusOut || type == QEvent::MouseButtonPress) pen_.PutAway(*Widget());
    if (type == QEvent::FocusIn && IsByTab(static_cast<const QFocusEvent&>(*event))) pen_.TakeUp(*Widget());
  }
  return PanelView::eventFilter(watched, event);
}

forms::MouseEvent PictureBoxView::InScale(forms::MouseEvent mouse) const {
  if (box_.ScaleMode != forms::kScalePixels) return mouse;
  mouse.x /= forms::kTwipsPerPixel;
  mouse.y /= forms::kTwipsPerPixel;
  return mouse;
}

}  // namespace lectern::desktop
