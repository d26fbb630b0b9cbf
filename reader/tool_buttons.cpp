#include "reader/tool_buttons.h"

namespace lectern::reader {

ToolButtons::ToolButtons(Panels& panels)
    : Command3(panels.Picture6, "Command3", {.caption = "&Book Mark"}),
      Command16(panels.Picture6, "Command16", {.caption = "&Search"}),
      Command8(panels.Picture6, "Command8", {.caption = "&Concordance"}),
      Command2(panels.Picture6, "Command2", {.caption = "Tri&via"}),
      Command14(panels.Picture6, "Command14", {.caption = "&Notes"}),
      Command17(panels.Picture6, "Command17", {.caption = "&Dictionary"}),
      Command1(panels.Picture6, "Command1", {.caption = "E&xit"}) {}

void ToolButtons::Set(bool enabled) {
  for (forms::CommandButton* button : {&Command3, &Command16, &Command8, &Command2, &Command14, &Command17}) {
    button->Enabled = enabled;
  }
}

}  // namespace lectern::reader
