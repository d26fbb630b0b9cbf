// Fonts and colours: what the text is set in at the left, how that looks at the right, colours below.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

// clang-format off
constexpr Place kPlaces[] = {
    {"Picture23",      53, 120, 600, 328},

    {"lblsetting(0)",  16,  12, 568,  24, Look::kHeading},

    {"lblsetting(1)",  16,  52,  48,  20},
    {"Combo1",         72,  48, 216,  28},
    {"lblsetting(2)",  16,  88,  48,  20},
    {"Combo2",         72,  84, 216,  28},
    {"lblsetting(3)",  16, 124,  48,  20},
    {"Combo3",         72, 120, 216,  28},

    {"lblf(0)",       304,  48, 280,  48, Look::kCentre},
    {"lblf(1)",       304, 100, 280,  48, Look::kCentre},

    {"lblsetting(4)",  16, 164, 568,  20, Look::kStrong},
    {"Option2",        16, 188, 128,  24},
    {"Option3",       152, 188, 128,  24},
    {"Picture24",      16, 220, 568,  48},
    {"Picture25",       7,   8,  44,  32},
    {"Picture26",      58,   8,  44,  32},
    {"Picture27",     109,   8,  44,  32},
    {"Picture28",     160,   8,  44,  32},
    {"Picture29",     211,   8,  44,  32},
    {"Picture30",     262,   8,  44,  32},
    {"Picture31",     313,   8,  44,  32},
    {"Picture32",     364,   8,  44,  32},
    {"Picture33",     415,   8,  44,  32},
    {"Picture34",     466,   8,  44,  32},
    {"Picture35",     517,   8,  44,  32},

    {"Command36",     396, 284,  90,  28},
    {"Command24",     494, 284,  90,  28},
};
// clang-format on

}  // namespace

const std::span<const Place> kSettingsPlaces = kPlaces;

}  // namespace lectern::ui
