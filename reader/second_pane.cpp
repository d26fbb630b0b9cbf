#include "reader/second_pane.h"

namespace lectern::reader {

SecondPane::SecondPane(Panels& panels)
    : RTXT2(panels.Picture4, "RTXT2", {.name = "Text of the other version", .read_only = true}),
      Label36(panels.Picture4, "Label36"),
      Command34(panels.Picture4, "Command34", {.caption = "Close", .is_cancel = true}) {
  Command34.Click = [&panels] { panels.Picture4.Visible = false; };
}

}  // namespace lectern::reader
