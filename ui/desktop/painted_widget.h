// A widget that is nothing but what is painted on it.
#pragma once

#include <QWidget>
#include <functional>
#include <utility>

namespace lectern::desktop {

class PaintedWidget : public QWidget {
 public:
  using Paint = std::function<void(QPainter&, const QRect& exposed)>;

  PaintedWidget(QWidget* parent, Paint paint) : QWidget(parent), paint_(std::move(paint)) {}

  // A click without a mouse; empty where clicks mean nothing.
  std::function<void()> press;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Paint paint_;
};

}  // namespace lectern::desktop
