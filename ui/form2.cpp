#include "ui/form2.h"

#include "ui/places.h"

namespace lectern::ui {

namespace {

// The client area is 618 by 443 pixels.
// clang-format off
constexpr Place kPlaces[] = {
    {"Text1",     24,  16, 569, 385},
    {"Command1", 393, 408,  96,  28},
    {"Command2", 497, 408,  96,  28},
};
// clang-format on

}  // namespace

Form2::Form2(forms::Services services) : Window(services, "Form2", "Print Page") {
  Width = 9270 + forms::kFrameWidth;
  Height = 6645 + forms::kFrameHeight;
  Apply(kPlaces, *this);
}

}  // namespace lectern::ui
