// Whenever the paint window opens with a picture, the first colour and the second brush are picked as by a
// click, so that what is painted is what is shown, and is kept, from the first stroke on.
#pragma once

#include "forms/picture.h"
#include "ui/desktop/app/events.h"
#include "ui/program.h"

namespace lectern::desktop {

class PaintStart {
 public:
  PaintStart(ui::Program& program, Events& events) : program_(program), events_(events) {}

  void Settle();  // after each event

 private:
  ui::Program& program_;
  Events& events_;
  bool open_ = false;
  forms::Picture original_;  // with which the window was opened
};

}  // namespace lectern::desktop
