// Widgets that the program paints itself, and their descriptions for screen readers.
#pragma once

#include <QWidget>
#include <functional>
#include <utility>

namespace lectern::desktop {

// What a screen reader learns about such a widget, in addition to its name.
struct Spoken {
  std::function<void()> press;  // clicks without a mouse; empty if a click does nothing
  bool is_echo = false;         // repeats the text of another widget and is skipped
};

// Shows what `Paint` paints, and a ring while it has the focus.
class PaintedWidget : public QWidget, public Spoken {
 public:
  using Paint = std::function<void(QPainter&, const QRect& exposed)>;

  PaintedWidget(QWidget* parent, Paint paint) : QWidget(parent), paint_(std::move(paint)) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Paint paint_;
};

// A widget that mouse clicks pass through.
PaintedWidget* MakeFigure(QWidget* parent, PaintedWidget::Paint paint);

// From now on describes these widgets and the program's windows to screen readers.
void DescribePaintedWidgets();

}  // namespace lectern::desktop
