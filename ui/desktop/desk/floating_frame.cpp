#include "ui/desktop/desk/floating_frame.h"

#include <QGraphicsDropShadowEffect>
#include <QPainter>

#include "ui/desktop/app/theme.h"

namespace lectern::desktop {

FloatingFrame::FloatingFrame(QWidget* parent) : QFrame(parent) {
  constexpr double kShadowWidth = 30;
  constexpr int kShadowDepth = 46;  // of 255
  auto* const shadow = new QGraphicsDropShadowEffect(this);
  shadow->setBlurRadius(kShadowWidth);
  shadow->setColor(QColor(0, 0, 0, kShadowDepth));
  shadow->setOffset(0, 2);
  setGraphicsEffect(shadow);
}

void FloatingFrame::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(LineColor(palette()));
  painter.setBrush(palette().color(QPalette::Window));
  painter.drawRoundedRect(OutlineOf(rect()), kPanelCorner, kPanelCorner);
}

}  // namespace lectern::desktop
