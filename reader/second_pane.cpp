#include "reader/second_pane.h"

#include <string>

#include "reader/reader.h"

namespace lectern::reader {

SecondPane::SecondPane(forms::PictureBox& Picture4) : Picture4_(Picture4) {
  Command34.Click = [&Picture4] { Picture4.Visible = false; };
}

void SecondPane::Open(Reader& reader) {
  reader.LoadOtherVersion(RTXT2);
  Label36.Caption = std::string(reader.OtherVersion().name);
  Picture4_.Visible = true;
}

}  // namespace lectern::reader
