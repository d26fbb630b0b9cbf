#include "reader/second_pane.h"

#include <string>

#include "reader/reader.h"

namespace lectern::reader {

SecondPane::SecondPane(forms::PictureBox& Picture4) : Picture4_(Picture4) {
  Command34.Click = [&Picture4] { Picture4.Visible = false; };
}

void SecondPane::Open(Reader& reader) {
  reader.LoadOtherVersion(RTXT2);
  TakeSize();
  Label36.Caption = std::string(reader.OtherVersion().name);
  Picture4_.Visible = true;
}

// Until it is first opened, the panel takes up no room.
void SecondPane::TakeSize() {
  const struct {
    forms::PlacedControl& control;
    double left, top, width, height;  // pixels
  } kPlaces[] = {
      {RTXT2, 0, 0, 600, 292},
      {Label36, 22, 306, 460, 20},
      {Command34, 494, 301, 84, 30},
  };
  Picture4_.Width = 600 * forms::kTwipsPerPixel;
  Picture4_.Height = 344 * forms::kTwipsPerPixel;
  for (const auto& place : kPlaces) {
    place.control.Left = place.left * forms::kTwipsPerPixel;
    place.control.Top = place.top * forms::kTwipsPerPixel;
    place.control.Width = place.width * forms::kTwipsPerPixel;
    place.control.Height = place.height * forms::kTwipsPerPixel;
  }
}

}  // namespace lectern::reader
