// Figures that are only looked at: they take no mouse. A line is a shape of no height or no width.
#pragma once

#include "forms/control.h"

namespace lectern::forms {

inline constexpr int kShapeRectangle = 0;
inline constexpr int kShapeSquare = 1;
inline constexpr int kShapeOval = 2;
inline constexpr int kShapeCircle = 3;

struct ShapeDesign {
  int figure = 0;  // one of those above
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  Colour back_color = kButtonFace;
};

class Shape : public PlacedControl {
 public:
  using Design = ShapeDesign;

  Shape(Container& parent, std::string name, const Design& design = {})
      : PlacedControl(parent, Kind::kShape, std::move(name), design),
        FigureKind(*this, "Shape", design.figure) {}

  Property<int> FigureKind;  // read and written by name as "Shape"
};

class Line : public PlacedControl {
 public:
  using Design = PlainDesign;

  Line(Container& parent, std::string name, const Design& design = {})
      : PlacedControl(parent, Kind::kLine, std::move(name), design) {}
};

}  // namespace lectern::forms
