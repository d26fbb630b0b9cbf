// A widget that is nothing but what is painted on it.
#pragma once

#include <QWidget>
#include <functional>
#include <utility>

#include "ui/desktop/views/spoken.h"

namespace lectern::desktop {

class PaintedWidget : public QWidget, public Spoken {
 public:
  using Paint = std::function<void(QPainter&, const QRect& exposed)>;

  PaintedWidget(QWidget* parent, Paint paint) : QWidget(parent), paint_(std::move(paint)) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Paint paint_;
};

}  // namespace lectern::desktop
