#include "ui/desktop/views/painted_widget.h"

#include <QPaintEvent>
#include <QPainter>

#include "ui/desktop/app/style.h"

namespace lectern::desktop {

void PaintedWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  paint_(painter, event->rect());
  if (hasFocus()) DrawFocusRing(painter, rect(), palette());
}

}  // namespace lectern::desktop
