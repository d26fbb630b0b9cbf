// How what a person does comes in, and how what came of it goes out.
//
// One event is delivered at a time and runs to its end; whatever turns up meanwhile, be it from a nested
// loop of a modal box or the echo of a widget that is being brought up to date, is not an act of the person
// and is dropped. Views whose controls changed are only noted while an event runs, and are shown once when it
// has ended: what stood for a moment never reaches the screen.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <vector>

#include "forms/window.h"

namespace lectern::desktop {

class Events;

// Something on the screen that shows a control or a window, and is brought up to date between events.
class LayerView : public forms::View {
 public:
  explicit LayerView(Events& events) : events_(events) {}
  ~LayerView() override;

  void Changed() override;

  // Brings the screen into the state of the model.
  virtual void Refresh() = 0;

 protected:
  Events& GetEvents() const { return events_; }

 private:
  friend class Events;
  Events& events_;
  bool stale_ = false;
};

class Events {
 public:
  // Carries out an event of a window; a failure in it has been dealt with when this returns.
  using Carry = std::function<void(forms::Window&, const std::function<void()>&)>;

  explicit Events(Carry carry);

  void Deliver(forms::Window& window, const std::function<void()>& event);

  // The same for work that carries out its events itself.
  void Run(const std::function<void()>& work);

  // Ticks of timers, which deal with failures themselves. Where many follow one another, what they changed is
  // shown as often as a screen can.
  enum class Ticking { kGoesOnAtOnce, kPauses };
  void DeliverTicks(const std::function<Ticking()>& ticks);

  // Whether an event, a box that it opened, or the showing of its results is at work.
  bool AtWork() const { return at_work_; }

  // Brings all views that are behind up to date: at the end of an event, and before a box opens.
  void ShowAll();

  // Runs ahead of an event: what the person did that is no event of its own is brought in.
  std::function<void()> starting;

  // Runs when an event has ended and what came of it is shown.
  std::function<void()> settled;

 private:
  friend class LayerView;
  void Settle();

  Carry carry_;
  bool at_work_ = false;
  std::vector<LayerView*> stale_;
  QElapsedTimer since_shown_;
  QTimer soon_;
};

}  // namespace lectern::desktop
