#include "reader/tool_buttons.h"

namespace lectern::reader {

void ToolButtons::Set(bool enabled) {
  for (forms::CommandButton* button : {&Command3, &Command16, &Command8, &Command2, &Command14, &Command17}) {
    button->Enabled = enabled;
  }
}

}  // namespace lectern::reader
