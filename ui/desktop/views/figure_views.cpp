#include "ui/desktop/views/figure_views.h"

#include <QPainter>
#include <algorithm>

#include "ui/desktop/app/style.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/painted_widget.h"

namespace lectern::desktop {

QWidget* ShapeView::Make(QWidget* parent) {
  auto* const widget = new PaintedWidget(parent, [this](QPainter& painter, const QRect&) { Paint(painter); });
  widget->setAttribute(Qt::WA_TransparentForMouseEvents);
  return widget;
}

// A square or circle is as large as the place allows, in its middle. Where the figure has no colour of its
// own it is an outline.
void ShapeView::Paint(QPainter& painter) const {
  QRectF area = QRectF(Widget()->rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  if (shape_.FigureKind == forms::kShapeSquare || shape_.FigureKind == forms::kShapeCircle) {
    const double side = std::min(area.width(), area.height());
    const QPointF middle = area.center();
    area = QRectF(middle.x() - side / 2, middle.y() - side / 2, side, side);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(LineColor(Widget()->palette()));
  if (!forms::IsSystemColour(shape_.BackColor))
    painter.setBrush(ToColor(shape_.BackColor, Widget()->palette()));
  if (shape_.FigureKind == forms::kShapeOval || shape_.FigureKind == forms::kShapeCircle) {
    painter.drawEllipse(area);
  } else {
    painter.drawRect(area);
  }
}

QWidget* LineView::Make(QWidget* parent) {
  auto* const widget = new PaintedWidget(parent, [this](QPainter& painter, const QRect& exposed) {
    painter.fillRect(exposed, LineColor(Widget()->palette()));
  });
  widget->setAttribute(Qt::WA_TransparentForMouseEvents);
  return widget;
}

}  // namespace lectern::desktop
