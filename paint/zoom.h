// Three levels of zoom, each a doubling of the one before; level 0 is the picture's own size. Zooming bakes
// the drawing into the picture and paints it stretched, so that the picture that is saved has the size of the
// level that stands.
#pragma once

#include "forms/buttons.h"
#include "forms/image.h"
#include "forms/text_box.h"
#include "paint/canvas.h"

namespace lectern::paint {

class Zoom {
 public:
  Zoom(forms::Window& form, Canvas& the_canvas);

  forms::ControlArray<forms::SSCommand> cmdm;  // in, out
  forms::TextBox txt5;                         // the level
  forms::Image picbox2;                        // the size that comes next

 private:
  bool IsTooLargeToDouble() const;
  void cmdm_Click(int index);

  Canvas& canvas_;
};

}  // namespace lectern::paint
