#include "forms/buttons.h"

#include <utility>

namespace lectern::forms {

Option::Option(Container& parent, Kind kind, std::string name, const Design& design)
    : Button(parent, kind, std::move(name), design), Value(*this, "Value", design.checked, {.change = [this] {
        if (!Value) return;
        for (Control* sibling : Parent().Children()) {
          if (auto* other = dynamic_cast<Option*>(sibling); other != nullptr && other != this) {
            other->Value = false;
          }
        }
      }}) {}

void Option::PersonClicks() {
  PersonPresses({});
  Value = true;
  Click();
}

}  // namespace lectern::forms
