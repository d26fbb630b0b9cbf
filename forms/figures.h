// What is only looked at: shapes and lines, which take no mouse, and images.
#pragma once

#include <string>

#include "forms/control.h"
#include "forms/picture.h"
#include "forms/window.h"

namespace lectern::forms {

inline constexpr int kShapeRectangle = 0;
inline constexpr int kShapeSquare = 1;
inline constexpr int kShapeOval = 2;
inline constexpr int kShapeCircle = 3;

class Shape : public PlacedControl {
 public:
  using Design = PlainDesign;

  Shape(Container& parent, std::string name, const Design& design = {})
      : PlacedControl(parent, Kind::kShape, std::move(name), design),
        FigureKind(*this, "Shape", kShapeRectangle) {}

  Property<int> FigureKind;  // one of those above; read and written by name as "Shape"
};

// A line is a shape of no height or no width.
class Line : public PlacedControl {
 public:
  using Design = PlainDesign;

  Line(Container& parent, std::string name, const Design& design = {})
      : PlacedControl(parent, Kind::kLine, std::move(name), design) {}
};

struct ImageDesign {
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  bool stretch = false;
};

// A picture on a panel. With Stretch off, assigning a picture gives the control the picture's size; with it
// on, the picture fills the control, whatever its proportions.
class Image : public PlacedControl {
 public:
  using Design = ImageDesign;

  Image(Container& parent, std::string name, const Design& design = {})
      : PlacedControl(parent, Kind::kImage, std::move(name), design),
        Picture(*this, "Picture", {}, {.change = [this] { TakePictureSize(); }, .counts_when_equal = true}),
        Stretch(*this, "Stretch", design.stretch, {.change = [this] { TakePictureSize(); }}),
        BorderStyle(*this, "BorderStyle") {}

  RuledProperty<forms::Picture> Picture;
  RuledProperty<bool> Stretch;
  Property<int> BorderStyle;

 private:
  void TakePictureSize() {
    if (Stretch || !Picture()) return;
    Width = Picture().Width() * kTwipsPerPixel;
    Height = Picture().Height() * kTwipsPerPixel;
  }
};

}  // namespace lectern::forms
