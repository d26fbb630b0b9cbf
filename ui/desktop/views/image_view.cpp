#include "ui/desktop/views/image_view.h"

#include <QPainter>

#include "ui/desktop/app/pictures.h"
#include "ui/desktop/app/style.h"
#include "ui/desktop/views/painted_widget.h"

namespace lectern::desktop {

QWidget* ImageView::Make(QWidget* parent) {
  auto* const widget = new PaintedWidget(parent, [this](QPainter& painter, const QRect&) { Paint(painter); });
  PrepareForInput(*widget);
  return widget;
}

void ImageView::Apply() {
  if (image_.Picture == shown_) return;
  shown_ = image_.Picture;
  filled_ = {};
  Widget()->update();
}

void ImageView::Paint(QPainter& painter) {
  const QRect area = Widget()->rect();
  if (shown_) {
    const double density = Widget()->devicePixelRatioF();
    const QSize natural(shown_.Width(), shown_.Height());
    const QSize wanted = (QSizeF(area.size()) * density).toSize();
    const QSize size = image_.Stretch ? wanted : (QSizeF(natural) * density).toSize();
    if (filled_.size() != size) filled_ = Filled(shown_, size);
    painter.drawPixmap(QRect(area.topLeft(), (QSizeF(size) / density).toSize()), filled_);
  }
  if (image_.BorderStyle != 0) {
    painter.setPen(LineColor(Widget()->palette()));
    painter.drawRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5));
  }
}

}  // namespace lectern::desktop
