// The canvas, in a viewport that clips it, and its only drawing tool, a round brush. A stroke is a row of
// dots, one for each movement of the mouse. Until the first click on a swatch or a brush, drawing appears on
// the screen only and is not part of the picture.
#pragma once

#include "forms/containers.h"
#include "forms/figures.h"
#include "forms/picture_box.h"
#include "forms/text_controls.h"
#include "forms/window.h"

namespace lectern::paint {

// The settings of the pen: hidden boxes with numbers as text. Only the width ever changes. The raster
// operation is number 3, which subtracts the pen from what is below: white becomes the complement of the pen.
class PenSettings {
  forms::Window& form_;

 public:
  explicit PenSettings(forms::Window& form) : form_(form) {}

  static constexpr int kDrawWidth = 0;  // indices of mde
  static constexpr int kDrawStyle = 1;
  static constexpr int kFillStyle = 2;
  static constexpr int kDrawMode = 3;
  static constexpr int kFillColor = 4;

  // Applies the settings to a canvas. A setting that is not a number is ignored.
  void Apply(forms::PictureBox& canvas) const;

  forms::Frame Frame2{form_, "Frame2", {.caption = "needs", .visible = false}};  // storage of the settings
  forms::Frame Frame1{Frame2, "Frame1"};                                         // holds the boxes
  // The settings, by the indices above.
  forms::ControlArray<forms::TextBox> mde{
      Frame1, "mde", {{.text = "15"}, {.text = "1"}, {.text = "1"}, {.text = "3"}, {.text = "7"}}};
  forms::TextBox Text2{Frame2, "Text2", {.text = "3"}};      // the canvas's scale mode
  forms::Label xpos{Frame1, "xpos", {.caption = "Label2"}};  // where the pointer is, across
  forms::Label ypos{Frame1, "ypos", {.caption = "Label2"}};  // the same, down
  // The labels of the boxes.
  forms::ControlArray<forms::Label> Label1{Frame1,
                                           "Label1",
                                           {"DrawWidth = ", "DrawStyle =", "FillStyle =", "X Position",
                                            "Y Position", "DrawMode =", "Fill Color  = ", "DrawWidth = "}};
  forms::Label Label3{Frame2, "Label3", {.caption = "Label3"}};          // nothing uses it
  forms::PictureBox clr1{Frame2, "clr1", {.back_color = forms::kBlue}};  // its background is the pen value
};

class Canvas {
  forms::Window& form_;
  PenSettings& pen_;

 public:
  Canvas(forms::Window& the_form, PenSettings& the_pen);

  // These centre the canvas in the viewport, even if it is larger.
  void Centre();
  void ShowInItsSize(const forms::Picture& picture);
  void TakePictureSize();  // of the picture that it shows

  forms::Frame Frame6{form_, "Frame6"};  // the viewport
  forms::PictureBox picbox{
      Frame6, "picbox", {.name = "Canvas", .back_color = forms::kWhite, .fore_color = forms::kBlack}};
  // The arrows: left, up, right, down.
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
