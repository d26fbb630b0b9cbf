#include "ui/small_windows.h"

#include "ui/places.h"

namespace lectern::ui {

namespace {

using enum forms::Anchor;
using enum Look;

// clang-format off
// The client area is 618 by 443 pixels.
constexpr Place kForm2Table[] = {
    {"Text1",      24,  16, 569, 385, kFill},
    {"Command1",  393, 408,  96,  28, kBottomRight},
    {"Command2",  497, 408,  96,  28, kBottomRight},
};

// The client area is 423 by 554 pixels; the chooser covers all of it.
constexpr Place kForm3Table[] = {
    {"lblname",    16,   8, 391,  32, kTop, kTitle},
    {"lblc",        0,   0,   0,   0, kStorage},
    {"txthelp",    16,  48, 391, 446, kFill},
    {"Command1",   16, 510,  88,  28, kBottomLeft},
    {"Command13", 112, 510,  88,  28, kBottomLeft},
    {"Command12", 319, 510,  88,  28, kBottomRight},

    {"FRMNOTE",   440,   8, 200,  64, kStorage},
    {"Label17",     8,   8, 184,  20, kTopLeft},
    {"Text42",      8,  32, 184,  24, kTopLeft},

    {"picopen",     8,   8, 423, 554, kFill},
    {"Drive1",     16,  16, 391,  28, kTop},
    {"Dir1",       16,  52, 391, 184, kTop},
    {"File1",      16, 244, 391, 218, kFill},
    {"Label2",     16, 474, 391,  20, kBottom},
    {"Command2",   16, 510, 144,  28, kBottomLeft},
    {"Command3",  319, 510,  88,  28, kBottomRight},
};

constexpr Arranged kForm3Arranged[] = {
    {"lblname",    16,  12, 391,  26, kTop, forms::TextRole::kTitle},
};

constexpr Place kForm5Table[] = {
    {"Image1",      0,   0, 320, 240, kTopLeft},
    {"Command1",  112,   8,  96,  28, kTopLeft},
};
// clang-format on

}  // namespace

Form2::Form2(forms::Services services) : Window(services, "Form2", "Print Page") {
  Width = 9270 + forms::kFrameWidth;
  Height = 6645 + forms::kFrameHeight;
  Apply(kForm2Table, *this);
}

Form3::Form3(forms::Services services) : Window(services, "Form3", "Notes") {
  Height = 9000;
  Apply(kForm3Table, *this);
  Apply(kForm3Arranged, *this);
}

Form5::Form5(forms::Services services) : Window(services, "Form5", "Print") {
  Width = 4800 + forms::kFrameWidth;  // fits the image while it is empty
  Height = 3600 + forms::kFrameHeight;
  Apply(kForm5Table, *this);
}

}  // namespace lectern::ui
