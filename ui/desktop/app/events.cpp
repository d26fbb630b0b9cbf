#include "ui/desktop/app/events.h"

#include <QThread>
#include <algorithm>
#include <utility>

namespace lectern::desktop {

namespace {

// While ticks follow one another, the screen is updated about sixty times a second.
constexpr int kBetweenFrames = 16;  // milliseconds

}  // namespace

LayerView::~LayerView() {
  if (!stale_) return;
  std::replace(events_.stale_.begin(), events_.stale_.end(), this, static_cast<LayerView*>(nullptr));
}

void LayerView::Changed() {
  if (!std::exchange(stale_, true)) events_.stale_.push_back(this);
}

Events::Events(Carry carry) : starting([] {}), settled([] {}), carry_(std::move(carry)) {
  since_shown_.start();
  soon_.setSingleShot(true);
  QObject::connect(&soon_, &QTimer::timeout, [this] {
    if (!at_work_) Settle();
  });
}

void Events::Deliver(forms::Window& window, const std::function<void()>& event) {
  Run([&] { carry_(window, event); });
}

void Events::Run(const std::function<void()>& work) {
  if (at_work_) return;
  at_work_ = true;
  starting();
  work();
  at_work_ = false;
  Settle();
}

void Events::RunLater(const std::function<void()>& work) {
  QTimer::singleShot(0, &soon_, [this, work] {
    // A drag runs a loop of its own, in the middle of a widget's event.
    if (QThread::currentThread()->loopLevel() <= 1) return Run(work);
    constexpr int kPause = 20;  // milliseconds
    QTimer::singleShot(kPause, &soon_, [this, work] { RunLater(work); });
  });
}

void Events::DeliverTicks(const std::function<Ticking()>& ticks) {
  if (at_work_) return;
  at_work_ = true;
  starting();
  const Ticking ticking = ticks();
  at_work_ = false;
  const qint64 elapsed = since_shown_.elapsed();
  if (ticking == Ticking::kPauses || elapsed >= kBetweenFrames) {
    Settle();
  } else if (!soon_.isActive()) {
    soon_.start(kBetweenFrames - static_cast<int>(elapsed));
  }
}

void Events::ShowAll() {
  const bool was_at_work = std::exchange(at_work_, true);
  // Refreshing a panel may create more views, which are added at the end.
  for (std::size_t i = 0; i < stale_.size(); ++i) {
    LayerView* const view = std::exchange(stale_[i], nullptr);
    if (view == nullptr) continue;
    view->stale_ = false;
    view->Refresh();
  }
  stale_.clear();
  since_shown_.restart();
  at_work_ = was_at_work;
}

void Events::Settle() {
  soon_.stop();
  ShowAll();
  settled();
}

}  // namespace lectern::desktop
