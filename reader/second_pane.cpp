#include "reader/second_pane.h"

namespace lectern::reader {

SecondPane::SecondPane(forms::PictureBox& Picture4) : Picture4_(Picture4) {
  Command34.Click = [&Picture4] { Picture4.Visible = false; };
}

}  // namespace lectern::reader
