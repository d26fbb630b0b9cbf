#include "ui/desktop/app/timers.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace lectern::desktop {

// A timer and the moment when it is due. Switching it on or giving it another interval starts it anew.
class Timers::Watched : public forms::View {
 public:
  explicit Watched(forms::Timer& timer) : timer_(timer) { timer_.Attach(this); }
  ~Watched() override { timer_.Attach(nullptr); }

  void Changed() override { starts_anew_ = true; }

  const forms::Timer& Timer() const { return timer_; }
  bool IsOn() const { return timer_.IsTicking(); }
  bool TicksAtOnce() const { return timer_.Interval <= 1; }
  qint64 Due() const { return due_; }

  void Update(qint64 now) {
    if (std::exchange(starts_anew_, false)) due_ = now + Interval();
  }
  // Ticks that became due meanwhile are skipped.
  void HasTicked(qint64 now) { due_ = TicksAtOnce() ? now : now + Interval() - (now - due_) % Interval(); }

 private:
  qint64 Interval() const { return TicksAtOnce() ? 0 : timer_.Interval(); }

  forms::Timer& timer_;
  bool starts_anew_ = true;
  qint64 due_ = 0;  // on the clock of Timers
};

Timers::Timers(Events& events, Round round) : events_(events), round_(std::move(round)) {
  clock_.start();
  alarm_.setSingleShot(true);
  alarm_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&alarm_, &QTimer::timeout, [this] { WakeUp(); });
}

Timers::~Timers() = default;

void Timers::Watch(forms::Window& window) {
  for (forms::Control* control : window.Controls()) {
    if (control->GetKind() != forms::Kind::kTimer) continue;
    watched_.push_back(std::make_unique<Watched>(static_cast<forms::Timer&>(*control)));
  }
}

void Timers::Forget(const forms::Window& window) {
  std::erase_if(watched_,
                [&window](const auto& watched) { return &watched->Timer().HostWindow() == &window; });
}

void Timers::Update() {
  const qint64 now = clock_.elapsed();
  std::optional<qint64> next;
  for (const auto& watched : watched_) {
    watched->Update(now);
    if (watched->IsOn()) next = std::min(next.value_or(watched->Due()), watched->Due());
  }
  if (next) {
    alarm_.start(static_cast<int>(std::max<qint64>(*next - now, 0)));
  } else {
    alarm_.stop();
  }
}

void Timers::WakeUp() {
  if (events_.AtWork()) return;  // the alarm is updated when the event ends
  const qint64 now = clock_.elapsed();
  events_.DeliverTicks([&] {
    std::vector<const forms::Timer*> due;
    for (const auto& watched : watched_) {
      watched->Update(now);
      if (!watched->IsOn() || watched->Due() > now) continue;
      watched->HasTicked(now);
      due.push_back(&watched->Timer());
    }
    round_(
        [&due](const forms::Timer& timer) { return std::find(due.begin(), due.end(), &timer) != due.end(); });
    const bool goes_on = std::any_of(watched_.begin(), watched_.end(), [](const auto& watched) {
      return watched->IsOn() && watched->TicksAtOnce();
    });
    return goes_on ? Events::Ticking::kGoesOnAtOnce : Events::Ticking::kPauses;
  });
  Update();
}

}  // namespace lectern::desktop
