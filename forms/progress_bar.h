// How far something has come. A Value past Max is kept and shows full; nothing fails.
#pragma once

#include "forms/control.h"

namespace lectern::forms {

class ProgressBar : public PlacedControl {
 public:
  ProgressBar(Container& parent, std::string name, const Design& design = {})
      : PlacedControl(parent, Kind::kProgressBar, std::move(name), design),
        Min(*this, "Min", design.min),
        Max(*this, "Max", design.max == 0 ? kDesignMax : design.max),
        Value(*this, "Value", design.value) {}

  static constexpr int kDesignMax = 100;

  Property<int> Min;
  Property<int> Max;
  Property<int> Value;
};

}  // namespace lectern::forms
