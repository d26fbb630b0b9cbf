#include "reader/desktop_colour.h"

#include <utility>

#include "base/text/numbers.h"
#include "forms/window.h"

namespace lectern::reader {

namespace {

struct Swatch {
  const char* control;
  forms::Colour colour;
  const char* name;
};

constexpr Swatch kSwatches[] = {
    {"Picture25", 0x00C0C0C0, "Light grey"},
    {"Picture26", 0x00FF00FF, "Magenta"},
    {"Picture27", 0x00FF0000, "Blue"},
    {"Picture28", 0x00FFFF00, "Cyan"},
    {"Picture29", 0x0000FF00, "Green"},
    {"Picture30", 0x0000FFFF, "Yellow"},
    {"Picture31", 0x000080FF, "Orange"},
    {"Picture32", 0x000000FF, "Red"},
    {"Picture33", 0x00000000, "Black"},
    {"Picture34", 0x00808080, "Grey"},
    {"Picture35", forms::kWindowBackground, "Window colour"},
};

}  // namespace

DesktopColour::DesktopColour(forms::PictureBox& Picture23, std::vector<forms::PlacedControl*> coloured)
    : Picture23_(Picture23), coloured_(std::move(coloured)) {
  for (const Swatch& swatch : kSwatches) {
    forms::PictureBox& box = swatches_.emplace_back(
        Picture24, swatch.control, forms::PictureBoxDesign{.name = swatch.name, .back_color = swatch.colour});
    box.Click = [this, &box] { Swatch_Click(box); };
  }
}

void DesktopColour::Swatch_Click(forms::PictureBox& swatch) {
  ChosenColour = std::to_string(swatch.BackColor);
  if (Option3.Value) {
    Picture23_.HostWindow().BackColor = text::ToLong(ChosenColour);
  } else {
    ApplyDesktopColour();
  }
}

// ODDITY(front-colour): what is called the front colour is the background of the panels.
void DesktopColour::ApplyDesktopColour() {
  for (forms::PlacedControl* panel : coloured_) panel->BackColor = text::ToLong(ChosenColour);
}

}  // namespace lectern::reader
