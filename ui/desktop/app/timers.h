// Ticks the timers of the windows. A timer with an interval of 1 ticks as soon as pending events have been
// handled; longer intervals are measured by the clock. No timer ticks while an event runs or a box is open;
// ticks that become due meanwhile are delivered as one.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "forms/bars_and_timer.h"
#include "forms/window.h"
#include "ui/desktop/app/events.h"

namespace lectern::desktop {

class Timers {
 public:
  // Ticks every timer that is on and due.
  using Round = std::function<void(const std::function<bool(const forms::Timer&)>& due)>;

  Timers(Events& events, Round round);
  ~Timers();

  // A window's timers tick from Watch to Forget.
  void Watch(forms::Window& window);
  void Forget(const forms::Window& window);

  // After an event: finds out which timers are on, and when the next one is due.
  void Update();

 private:
  class Watched;
  void WakeUp();

  Events& events_;
  Round round_;
  std::vector<std::unique_ptr<Watched>> watched_;
  QElapsedTimer clock_;
  QTimer alarm_;
};

}  // namespace lectern::desktop
