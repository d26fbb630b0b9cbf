// The canvas, in a viewport that clips it, and the one drawing tool: a round brush. A stroke is a chain of
// separate dots, one for each movement of the mouse; a fast one leaves gaps, and that is the design.
//
// Until a swatch or a brush is clicked for the first time, drawing is seen on the screen alone and is no part
// of the picture.
#pragma once

#include "forms/containers.h"
#include "forms/figures.h"
#include "forms/picture_box.h"
#include "forms/window.h"
#include "paint/pen_settings.h"

namespace lectern::paint {

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
