#include "ui/desktop/views/panel_view.h"

#include <QPainter>

#include "forms/containers.h"
#include "forms/window.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/painted_widget.h"
#include "ui/desktop/views/view_factory.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

constexpr int kShadow = 10;  // pixels around the panel

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

class FrameView : public ViewOf<forms::Frame, PanelView> {
  using ViewOf::ViewOf;

  void Apply() override {
    PanelView::Apply();
    Widget()->update();
  }

  // Paints the caption at the upper edge. On the bench the tab of the page shows it instead.
  void Paint(QPainter& painter, const QRect& /*exposed*/) override {
    PaintEdges(painter);
    const QString caption = ToQString(Control().Caption);
    if (IsInCorner() || caption.trimmed().isEmpty()) return;
    constexpr int kIndent = 16;
    const QFontMetrics metrics(Widget()->font());
    const QRect heading(kIndent, 2, Widget()->width() - 2 * kIndent, metrics.height());
    painter.setPen(Widget()->palette().color(QPalette::WindowText));
    painter.drawText(heading, Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(caption, Qt::ElideRight, heading.width()));
  }
};

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
  // A panel that is visible from the start is part of the window and has no shadow.
  if (Widget() == nullptr || Control().ShownAt() == 0 || Control().Parent().Outer() != nullptr) return;
  if (shadow_ == nullptr) shadow_ = MakeFigure(Widget()->parentWidget(), PaintShadow);
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

ViewMaker* const kMakeFrameView = MakeViewOf<FrameView, forms::Frame>;

}  // namespace lectern::desktop
