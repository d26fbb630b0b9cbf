// The picture as it was opened, and the last four states that were kept. A state is kept whenever a swatch or
// a brush is clicked, whether or not anything was painted; going back to one changes none.
#pragma once

#include <string>

#include "forms/frame.h"
#include "forms/image.h"
#include "forms/shape.h"
#include "paint/canvas.h"
#include "paint/zoom.h"

namespace lectern::paint {

class SaveSlots {
 public:
  SaveSlots(forms::Window& the_form, Canvas& the_canvas, Zoom& the_zoom);

  // From the first call on, what is drawn is part of the picture. At zoom level 0 a copy goes to a scratch
  // file, which nothing reads.
  void TakeSnapshot(const std::string& scratch_file);

  forms::Frame Frame7;
  forms::ControlArray<forms::Image> IMGSPB;  // the original, then the states from the oldest to the newest
  forms::Line Line2;

 private:
  void IMGSPB_Click(int index);

  forms::Window& form_;
  Canvas& canvas_;
  Zoom& zoom_;
};

}  // namespace lectern::paint
