// The picture as it was opened, and the last four states that were kept. A state is kept whenever a swatch or
// a brush is clicked, whether or not anything was painted; going back to one changes none.
#pragma once

#include <string>

#include "forms/containers.h"
#include "forms/figures.h"
#include "paint/canvas.h"
#include "paint/zoom.h"

namespace lectern::paint {

class SaveSlots {
  forms::Window& form_;
  Canvas& canvas_;
  Zoom& zoom_;

 public:
  SaveSlots(forms::Window& the_form, Canvas& the_canvas, Zoom& the_zoom);

  // From the first call on, what is drawn is part of the picture. At zoom level 0 a copy goes to a scratch
  // file, which nothing reads.
  void TakeSnapshot(const std::string& scratch_file);

  forms::Frame Frame7{form_, "Frame7", {.caption = "   Original               Saves  "}};  // holds the slots
  // The original, then the states from the oldest to the newest.
  forms::ControlArray<forms::Image> IMGSPB{Frame7,
                                           "IMGSPB",
                                           {{.name = "Original", .stretch = true},
                                            {.name = "Save 1, the oldest", .stretch = true},
                                            {.name = "Save 2", .stretch = true},
                                            {.name = "Save 3", .stretch = true},
                                            {.name = "Save 4, the newest", .stretch = true}}};
  forms::Line Line2{Frame7, "Line2"};  // between the original and the states

 private:
  void IMGSPB_Click(int index);
};

}  // namespace lectern::paint
