// Widgets that the program paints itself, and what a screen reader learns of them: windows, panels, labels,
// and pictures that can be pressed.
#pragma once

#include <QWidget>
#include <functional>
#include <utility>

namespace lectern::desktop {

// What a widget of the program's own tells a screen reader, besides its name.
struct Spoken {
  // A click without a mouse; empty where clicks mean nothing.
  std::function<void()> press;
  // It repeats what another widget says, and is skipped.
  bool is_echo = false;
};

// A widget that consists of what is painted on it, and of the ring when it has the focus.
class PaintedWidget : public QWidget, public Spoken {
 public:
  using Paint = std::function<void(QPainter&, const QRect& exposed)>;

  PaintedWidget(QWidget* parent, Paint paint) : QWidget(parent), paint_(std::move(paint)) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Paint paint_;
};

// A widget that is only looked at: clicks fall through it.
PaintedWidget* MakeFigure(QWidget* parent, PaintedWidget::Paint paint);

// From now on, describes such widgets to screen readers.
void DescribePaintedWidgets();

}  // namespace lectern::desktop
