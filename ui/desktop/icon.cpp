#include "ui/desktop/icon.h"

#include <QPainter>
#include <QPainterPath>

namespace lectern::desktop {

namespace {

constexpr double kGrid = 32;  // the mark is drawn on a field of this size

// One page of the book, from the fold to the right; the left one is its mirror image.
QPainterPath Page() {
  QPainterPath page;
  page.moveTo(16, 9);
  page.cubicTo(19, 6.5, 24, 6, 28, 7.5);
  page.lineTo(28, 20);
  page.cubicTo(24, 18.5, 19, 19, 16, 21.5);
  page.closeSubpath();
  return page;
}

void DrawMark(QPainter& painter) {
  const QColor wood(0x7a, 0x4e, 0x2b);
  const QColor cover(0x2f, 0x61, 0x8f);
  const QColor paper(0xfd, 0xfb, 0xf4);
  painter.setPen(QPen(wood, 2.5, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(16, 22), QPointF(16, 29));
  painter.drawLine(QPointF(10, 29.5), QPointF(22, 29.5));
  for (const double side : {1.0, -1.0}) {
    painter.save();
    painter.translate(side > 0 ? 0 : kGrid, 0);
    painter.scale(side, 1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(cover);
    painter.drawPath(Page().translated(1.2, 2));
    painter.setPen(QPen(cover, 1));
    painter.setBrush(paper);
    painter.drawPath(Page());
    painter.setPen(QPen(QColor(0x9a, 0xa5, 0xb0), 1));
    for (const double line : {11.0, 13.5, 16.0}) {
      painter.drawLine(QPointF(19, line + 0.2), QPointF(25.5, line - 0.9));
    }
    painter.restore();
  }
}

}  // namespace

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128}) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / kGrid, size / kGrid);
    DrawMark(painter);
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace lectern::desktop
