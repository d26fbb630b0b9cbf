// How events come in and how their results go out.
//
// One event is delivered at a time and runs to its end. What arrives meanwhile, from the nested loop of a
// modal box or as the echo of a widget that is being updated, is not an act of the person and is dropped.
// While an event runs, views only note that their controls have changed; they are updated once when it has
// ended, so that states in between never reach the screen.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <vector>

#include "forms/window.h"

namespace lectern::desktop {

class Events;

// Shows a control or a window on the screen, and is updated between events.
class LayerView : public forms::View {
 public:
  explicit LayerView(Events& events) : events_(events) {}
  ~LayerView() override;

  void Changed() override;

  // Shows the present state of the model.
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
  // Runs an event of a window and deals with its failures.
  using Carry = std::function<void(forms::Window&, const std::function<void()>&)>;

  explicit Events(Carry carry);

  // Runs an event of a window, then shows its results.
  void Deliver(forms::Window& window, const std::function<void()>& event);

  // The same for work that runs its events itself.
  void Run(const std::function<void()>& work);

  // The same, once Qt has finished with the event at hand and every nested loop has ended. Only such work may
  // destroy a window: until then its widgets are still in use.
  void RunLater(const std::function<void()>& work);

  // Runs ticks of timers, which deal with failures themselves. While ticks follow one another without a
  // pause, their results are shown only as often as the screen refreshes.
  enum class Ticking { kGoesOnAtOnce, kPauses };
  void DeliverTicks(const std::function<Ticking()>& ticks);

  // Whether an event runs, a box that it opened is open, or its results are being shown.
  bool AtWork() const { return at_work_; }

  // Updates all views whose controls have changed: at the end of an event, and before a box opens.
  void ShowAll();

  // Called ahead of an event, to take over what the person did without one, such as selecting text.
  std::function<void()> starting;

  // Called when an event has ended and its results are shown.
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
