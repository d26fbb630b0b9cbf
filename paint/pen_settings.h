// The settings of the pen, on a frame that nobody sees: boxes that hold numbers as text. Only the width ever
// changes while the program runs. The raster operation is number 3, so that paint takes its colour away from
// what it is put on: on white it shows the complement of the pen.
#pragma once

#include "forms/frame.h"
#include "forms/label.h"
#include "forms/picture_box.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace lectern::paint {

class PenSettings {
 public:
  explicit PenSettings(forms::Window& form);

  static constexpr int kDrawWidth = 0;  // indices of mde
  static constexpr int kDrawStyle = 1;
  static constexpr int kFillStyle = 2;
  static constexpr int kDrawMode = 3;
  static constexpr int kFillColor = 4;

  // Takes over into a canvas what its settings say; each that is no number leaves the canvas as it is.
  void Apply(forms::PictureBox& canvas) const;

  forms::Frame Frame2;
  forms::Frame Frame1;
  forms::ControlArray<forms::TextBox> mde;
  forms::TextBox Text2;  // the canvas's scale mode
  forms::Label xpos;
  forms::Label ypos;
  forms::ControlArray<forms::Label> Label1;
  forms::Label Label3;
  forms::PictureBox clr1;  // its colour is the pen value
};

}  // namespace lectern::paint
