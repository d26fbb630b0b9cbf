// The colours of the settings panel: a strip of swatches, and whether a click on one colours the main window
// or the panels. Nothing of it is stored; the next start has the colours of the desktop again.
#pragma once

#include <deque>
#include <string>

#include "forms/buttons.h"
#include "forms/picture_box.h"
#include "reader/panels.h"

namespace lectern::reader {

class DesktopColour {
 public:
  explicit DesktopColour(Panels& the_panels);

 private:
  void Swatch_Click(forms::PictureBox& swatch);
  void ApplyDesktopColour();

  Panels& panels_;
  // Colours the panels; set at the start.
  forms::OptionButton Option2{panels_.Picture23, "Option2", {.caption = "Front Color", .checked = true}};
  // Colours the window.
  forms::OptionButton Option3{panels_.Picture23, "Option3", {.caption = "Back Color"}};
  forms::PictureBox Picture24{panels_.Picture23, "Picture24", {.name = "Colours"}};  // holds the swatches
  std::deque<forms::PictureBox> swatches_;
  std::string ChosenColour;  // a colour number as text, signed
};

}  // namespace lectern::reader
