// Controls that hold a number: scroll bars, progress bars, and the timer with its interval.
#pragma once

#include <cassert>
#include <string>

#include "forms/control.h"

namespace lectern::forms {

struct HScrollBarDesign {
  int value = 0;
  int min = 0;
  int max = 0;
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  std::string_view key_back{};  // steps back, wherever the focus is, such as "Ctrl+PgUp"
  std::string_view key_on{};    // the same for a step on
  bool follows_thumb = false;   // while a person drags it
  bool counts_from_1 = false;   // a person is shown 1 for the value 0
};

// Writing a Value outside Min to Max is refused (error 380); a Value that a new Max leaves outside stays as
// it is. Change runs once at the end of a person's drag; a bar that follows the thumb runs it at every
// position that the drag passes.
class HScrollBar : public PlacedControl {
 public:
  using Design = HScrollBarDesign;

  HScrollBar(Container& parent, std::string name, const Design& design = {})
      : PlacedControl(parent, Kind::kHScrollBar, std::move(name), design),
        Min(*this, "Min", design.min),
        Max(*this, "Max", design.max),
        Value(*this, "Value", design.value,
              {.refuse =
                   [this](int value) {
                     if (!InRange(value)) throw base::RunTimeError(base::ErrorNumber::kInvalidProperty);
                   },
               .change = [this] { Change(); }}),
        key_back_(design.key_back),
        key_on_(design.key_on),
        follows_thumb_(design.follows_thumb),
        counts_from_1_(design.counts_from_1) {}

  bool InRange(int value) const { return value >= Min && value <= Max; }
  const std::string& KeyBack() const { return key_back_; }
  const std::string& KeyOn() const { return key_on_; }
  bool FollowsThumb() const { return follows_thumb_; }
  int ShownNumber(int value) const { return counts_from_1_ ? value + 1 : value; }

  // The person moves the thumb to a value. Requires: InRange(value).
  void PersonScrolls(int value) {
    assert(InRange(value));
    Value = value;
  }

  Property<int> Min;
  Property<int> Max;
  RuledProperty<int> Value;
  Event<> Change;

 private:
  std::string key_back_;
  std::string key_on_;
  bool follows_thumb_;
  bool counts_from_1_;
};

// How far something has come. A Value past Max is kept and shows full; nothing fails.
class ProgressBar : public PlacedControl {
 public:
  using Design = PlainDesign;

  ProgressBar(Container& parent, std::string name, const Design& design = {})
      : PlacedControl(parent, Kind::kProgressBar, std::move(name), design),
        Min(*this, "Min"),
        Max(*this, "Max", 100),
        Value(*this, "Value") {}

  Property<int> Min;
  Property<int> Max;
  Property<int> Value;
};

struct TimerDesign {
  bool enabled = true;
  int interval = 0;  // milliseconds
};

// Ticks at its interval while it is enabled. Ticks come between handlers only, and those that fell due during
// one handler are one; an interval of 1 means as soon as the running handler has ended, 0 never.
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
