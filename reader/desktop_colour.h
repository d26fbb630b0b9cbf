// The colours of the settings panel: a strip of swatches, and whether a click on one colours the main window
// or the panels. Nothing of it is stored; the next start has the colours of the desktop again.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "forms/buttons.h"
#include "forms/picture_box.h"

namespace lectern::reader {

class DesktopColour {
 public:
  // `coloured` is what the panels' colour goes to.
  DesktopColour(forms::PictureBox& Picture23, std::vector<forms::PlacedControl*> coloured);

 private:
  void Swatch_Click(forms::PictureBox& swatch);
  void ApplyDesktopColour();

  forms::PictureBox& Picture23_;
  std::vector<forms::PlacedControl*> coloured_;
  // Colours the panels; set at the start.
  forms::OptionButton Option2{Picture23_, "Option2", {.caption = "Front Color", .checked = true}};
  // Colours the window.
  forms::OptionButton Option3{Picture23_, "Option3", {.caption = "Back Color"}};
  forms::PictureBox Picture24{Picture23_, "Picture24", {.name = "Colours"}};  // holds the swatches
  std::deque<forms::PictureBox> swatches_;
  std::string ChosenColour;  // a colour number as text, signed
};

}  // namespace lectern::reader
