// Shapes and lines: looked at, and nothing else.
#pragma once

#include "forms/figures.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

class ShapeView : public ControlView {
 public:
  ShapeView(forms::Shape& shape, WindowView& window, QWidget& parent)
      : ControlView(shape, window, parent), shape_(shape) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override { Widget()->update(); }
  Ground GetGround() const override { return Ground::kNone; }

 private:
  void Paint(QPainter& painter) const;

  forms::Shape& shape_;
};

class LineView : public ControlView {
 public:
  LineView(forms::Line& line, WindowView& window, QWidget& parent) : ControlView(line, window, parent) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override {}
};

}  // namespace lectern::desktop
