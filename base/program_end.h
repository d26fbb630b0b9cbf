// Thrown to end the program at once, from inside any handler. It is no RunTimeError, so that no error
// mode swallows it; the layer catches it between events and closes every window without running any
// further handler.
#pragma once

namespace lectern::base {

struct ProgramEnd {
  int status = 0;  // the process's exit status
};

}  // namespace lectern::base
