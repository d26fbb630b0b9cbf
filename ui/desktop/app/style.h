// The look of what Qt draws: flat, with fine lines, and a clear ring around whatever has the focus. Whatever
// is not drawn here is drawn by Qt's own Fusion style.
#pragma once

#include <QIcon>
#include <QProxyStyle>
#include <QStyleOption>

namespace lectern::desktop {

class Style : public QProxyStyle {
 public:
  Style();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;

 private:
  void DrawButton(const QStyleOption& option, QPainter& painter) const;
  void DrawRadio(const QStyleOption& option, QPainter& painter) const;
  void DrawFrame(const QStyleOption& option, QPainter& painter) const;
  void DrawScrollBar(const QStyleOptionSlider& option, QPainter& painter, const QWidget* widget) const;
};

// The colour of fine lines around and between things.
QColor LineColor(const QPalette& palette);

// A ring that says that the keyboard's input goes here.
void DrawFocusRing(QPainter& painter, const QRectF& around, const QPalette& palette);

}  // namespace lectern::desktop
