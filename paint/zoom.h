// Three levels of zoom, each a doubling of the one before; level 0 is the picture's own size. Zooming bakes
// the drawing into the picture and paints it stretched, so that the picture that is saved has the size of the
// level that stands.
#pragma once

#include "forms/buttons.h"
#include "forms/figures.h"
#include "forms/text_controls.h"
#include "paint/canvas.h"

namespace lectern::paint {

class Zoom {
  forms::Window& form_;
  Canvas& canvas_;

 public:
  Zoom(forms::Window& form, Canvas& the_canvas);

  // In, out.
  forms::ControlArray<forms::SSCommand> cmdm{form_,
                                             "cmdm",
                                             {{.caption = "      +", .name = "Zoom in"},
                                              {.caption = "      -", .enabled = false, .name = "Zoom out"}}};
  forms::TextBox txt5{form_, "txt5", {.text = "0", .name = "Zoom level"}};  // the level
  forms::Image picbox2{form_, "picbox2", {.visible = false}};               // the size that comes next

 private:
  bool IsTooLargeToDouble() const;
  void cmdm_Click(int index);
};

}  // namespace lectern::paint
