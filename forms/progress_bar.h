// How far something has come. A Value past Max is kept and shows full; nothing fails.
#pragma once

#include "forms/control.h"

namespace lectern::forms {

struct ProgressBarDesign {
  int value = 0;
  int min = 0;
  int max = 100;
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
};

class ProgressBar : public PlacedControl {
 public:
  using Design = ProgressBarDesign;

  ProgressBar(Container& parent, std::string name, const Design& design = {})
      : PlacedControl(parent, Kind::kProgressBar, std::move(name), design),
        Min(*this, "Min", design.min),
        Max(*this, "Max", design.max),
        Value(*this, "Value", design.value) {}

  Property<int> Min;
  Property<int> Max;
  Property<int> Value;
};

}  // namespace lectern::forms
