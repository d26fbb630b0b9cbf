// The canvas, in a viewport that clips it, and the one drawing tool: a round brush. A stroke is a chain of
// separate dots, one for each movement of the mouse; a fast one leaves gaps, and that is the design.
//
// Until a swatch or a brush is clicked for the first time, drawing is seen on the screen alone and is no part
// of the picture.
#pragma once

#include "forms/containers.h"
#include "forms/figures.h"
#include "forms/picture_box.h"
#include "forms/text_controls.h"
#include "forms/window.h"

namespace lectern::paint {

// The settings of the pen, on a frame that nobody sees: boxes that hold numbers as text. Only the width ever
// changes while the program runs. The raster operation is number 3, so that paint takes its colour away from
// what it is put on: on white it shows the complement of the pen.
class PenSettings {
  forms::Window& form_;

 public:
  explicit PenSettings(forms::Window& form) : form_(form) {}

  static constexpr int kDrawWidth = 0;  // indices of mde
  static constexpr int kDrawStyle = 1;
  static constexpr int kFillStyle = 2;
  static constexpr int kDrawMode = 3;
  static constexpr int kFillColor = 4;

  // Takes over into a canvas what its settings say; each that is no number leaves the canvas as it is.
  void Apply(forms::PictureBox& canvas) const;

  // Storage of the pen's settings.
  forms::Frame Frame2{form_, "Frame2", {.caption = "needs", .visible = false}};
  forms::Frame Frame1{Frame2, "Frame1"};  // holds the boxes
  // The settings, by the indices above.
  forms::ControlArray<forms::TextBox> mde{
      Frame1, "mde", {{.text = "15"}, {.text = "1"}, {.text = "1"}, {.text = "3"}, {.text = "7"}}};
  forms::TextBox Text2{Frame2, "Text2", {.text = "3"}};      // the canvas's scale mode
  forms::Label xpos{Frame1, "xpos", {.caption = "Label2"}};  // where the pointer is
  forms::Label ypos{Frame1, "ypos", {.caption = "Label2"}};  // the same, down
  // What each box is for.
  forms::ControlArray<forms::Label> Label1{Frame1,
                                           "Label1",
                                           {{.caption = "DrawWidth = "},
                                            {.caption = "DrawStyle ="},
                                            {.caption = "FillStyle ="},
                                            {.caption = "X Position"},
                                            {.caption = "Y Position"},
                                            {.caption = "DrawMode ="},
                                            {.caption = "Fill Color  = "},
                                            {.caption = "DrawWidth = "}}};
  forms::Label Label3{Frame2, "Label3", {.caption = "Label3"}};          // nothing uses it
  forms::PictureBox clr1{Frame2, "clr1", {.back_color = forms::kBlue}};  // its background is the pen value
};

class Canvas {
  forms::Window& form_;
  PenSettings& pen_;

 public:
  Canvas(forms::Window& the_form, PenSettings& the_pen);

  // In the middle of the viewport; a canvas larger than it begins outside.
  void Centre();

  // Shows a picture in its own size, in the middle.
  void ShowInItsSize(const forms::Picture& picture);

  // Gives the canvas the size of the picture that it shows, in the middle.
  void TakePictureSize();

  forms::Frame Frame6{form_, "Frame6"};  // the viewport
  // The canvas.
  forms::PictureBox picbox{
      Frame6, "picbox", {.name = "Canvas", .back_color = forms::kWhite, .fore_color = forms::kBlack}};
  // Move the canvas: left, up, right, down.
  forms::ControlArray<forms::Image> imgs{form_,
                                         "imgs",
                                         {{.name = "Move the picture right"},
                                          {.name = "Move the picture down"},
                                          {.name = "Move the picture left"},
                                          {.name = "Move the picture up"}}};
  forms::Image imgp{form_, "imgp", {.visible = false}};  // measures a picture

 private:
  void picbox_MouseDown(forms::MouseEvent mouse);
  void picbox_MouseMove(forms::MouseEvent mouse);
  void imgs_Click(int index);
};

}  // namespace lectern::paint
