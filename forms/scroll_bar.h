// A horizontal scroll bar. Writing a Value outside Min to Max is refused (error 380); a Value that a new Max
// leaves outside stays as it is. Change runs once at the end of a person's drag.
#pragma once

#include "forms/control.h"

namespace lectern::forms {

struct HScrollBarDesign {
  int value = 0;
  int min = 0;
  int max = 0;
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  int large_step = 1;           // how far a click into the trough goes
  std::string_view key_back{};  // steps back, wherever the focus is, such as "Ctrl+PgUp"
  std::string_view key_on{};    // the same for a step on
};

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
        large_step_(design.large_step),
        key_back_(design.key_back),
        key_on_(design.key_on) {}

  bool InRange(int value) const { return value >= Min && value <= Max; }
  int LargeStep() const { return large_step_; }
  const std::string& KeyBack() const { return key_back_; }
  const std::string& KeyOn() const { return key_on_; }

  // The person lets go of the thumb at a value, which lies in the range.
  void PersonScrolls(int value) { Value = value; }

  Property<int> Min;
  Property<int> Max;
  RuledProperty<int> Value;
  Event<> Change;

 private:
  int large_step_;
  std::string key_back_;
  std::string key_on_;
};

}  // namespace lectern::forms
