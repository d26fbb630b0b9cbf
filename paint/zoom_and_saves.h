// The zoom and the saved states of the picture.
#pragma once

#include <string>

#include "forms/buttons.h"
#include "paint/canvas.h"

namespace lectern::paint {

// Three levels of zoom, each twice the size of the one before; level 0 is the picture's own size. Zooming
// stretches the picture itself, with what was drawn on it, so it is saved in the size of the current level.
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
  forms::Image picbox2{form_, "picbox2", {.visible = false}};               // the next size

 private:
  bool IsTooLargeToDouble() const;
  void cmdm_Click(int index);
};

// The picture as it was opened, and its last four states. Each click on a swatch or a brush saves a state,
// even if nothing was painted. Going back to a state changes none of them.
class SaveSlots {
  forms::Window& form_;
  Canvas& canvas_;
  Zoom& zoom_;

 public:
  SaveSlots(forms::Window& the_form, Canvas& the_canvas, Zoom& the_zoom);

  // From the first call on, drawing is part of the picture. At zoom level 0, it also writes a scratch file.
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
};

}  // namespace lectern::paint
