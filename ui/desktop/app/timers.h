// Gives the timers of the windows their ticks. One at an interval of 1 ticks as soon as what is pending has
// been served, one at a longer interval keeps its time. While an event or a box is at work none ticks, and
// what fell due meanwhile is one tick.
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
  // A round of ticks: one of every timer that is on and due.
  using Round = std::function<void(const std::function<bool(const forms::Timer&)>& due)>;

  Timers(Events& events, Round round);
  ~Timers();

  void Watch(forms::Window& window);
  void Forget(forms::Window& window);

  // After an event: looks which timers are on, and when the next one is due.
  void Reckon();

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
