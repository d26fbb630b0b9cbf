#include "ui/form5.h"

#include "ui/places.h"

namespace lectern::ui {

namespace {

// clang-format off
constexpr Place kPlaces[] = {
    {"Image1",     0, 0, 320, 240},
    {"Command1", 112, 8,  96,  28},
};
// clang-format on

}  // namespace

Form5::Form5(forms::Services services) : Window(services, "Form5", "Print") {
  Width = 4800 + forms::kFrameWidth;  // around the image as it is before it gets a picture
  Height = 3600 + forms::kFrameHeight;
  Apply(kPlaces, *this);
}

}  // namespace lectern::ui
