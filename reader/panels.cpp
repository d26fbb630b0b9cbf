#include "reader/panels.h"

namespace lectern::reader {

Panels::Panels(forms::Window& form) : form_(form) {
  Picture6.BorderStyle = 0;  // no edge: the tools belong to the text above them
}

}  // namespace lectern::reader
