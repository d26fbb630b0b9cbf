// Ticks at its interval (milliseconds) while it is enabled. Ticks come between handlers only, and those that
// fell due during one handler are one; an interval of 1 means as soon as the running handler has ended, 0
// never.
#pragma once

#include "forms/control.h"

namespace lectern::forms {

struct TimerDesign {
  bool enabled = true;
  int interval = 0;  // milliseconds
};

class Timer : public Control {
 public:
  using Design = TimerDesign;

  Timer(Container& parent, std::string name, const Design& design = {})
      : Control(parent, Kind::kTimer, std::move(name), design),
        Interval(*this, "Interval", design.interval) {}

  bool IsTicking() const { return Enabled && Interval > 0; }

  Property<int> Interval;
  Event<> Tick;
};

}  // namespace lectern::forms
