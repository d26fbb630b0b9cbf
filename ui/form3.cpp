#include "ui/form3.h"

#include "ui/places.h"

namespace lectern::ui {

namespace {

constexpr double kHeight = 9000;  // twips

// The client area is 423 by 554 pixels; the chooser covers all of it.
// clang-format off
constexpr Place kPlaces[] = {
    {"lblname",    16,   8, 391,  32, Look::kTitle},
    {"lblc",        0,   0,   0,   0},
    {"txthelp",    16,  48, 391, 446},
    {"Command1",   16, 510,  88,  28},
    {"Command13", 112, 510,  88,  28},
    {"Command12", 319, 510,  88,  28},

    {"FRMNOTE",   440,   8, 200,  64},
    {"Label17",     8,   8, 184,  20},
    {"Text42",      8,  32, 184,  24},

    {"picopen",     8,   8, 423, 554},
    {"Drive1",     16,  16, 391,  28},
    {"Dir1",       16,  52, 391, 184},
    {"File1",      16, 244, 391, 218},
    {"Label2",     16, 474, 391,  20},
    {"Command2",   16, 510, 144,  28},
    {"Command3",  319, 510,  88,  28},
};
// clang-format on

}  // namespace

Form3::Form3(forms::Services services) : Window(services, "Form3", "Notes") {
  Height = kHeight;
  Apply(kPlaces, *this);
}

}  // namespace lectern::ui
