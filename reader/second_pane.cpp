#include "reader/second_pane.h"

namespace lectern::reader {

SecondPane::SecondPane(Panels& panels) : panels_(panels) {
  Command34.Click = [&panels] { panels.Picture4.Visible = false; };
}

}  // namespace lectern::reader
