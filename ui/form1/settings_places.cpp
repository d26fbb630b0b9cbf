// Fonts and colours: what the text is set in at the left, how that looks at the right, colours below.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr Place kPlaces[] = {
    {"Picture23", 53, 120, 560, 344},

    {"lblsetting(0)", 16, 16, 528, 24, Look::kHeading},

    {"lblsetting(1)", 16, 60, 48, 20},
    {"Combo1", 72, 56, 208, 28},
    {"lblsetting(2)", 16, 96, 48, 20},
    {"Combo2", 72, 92, 208, 28},
    {"lblsetting(3)", 16, 132, 48, 20},
    {"Combo3", 72, 128, 208, 28},

    {"lblf(0)", 296, 56, 248, 48, Look::kCentre},
    {"lblf(1)", 296, 108, 248, 48, Look::kCentre},

    {"lblsetting(4)", 16, 176, 528, 20, Look::kStrong},
    {"Option2", 16, 200, 128, 24},
    {"Option3", 152, 200, 128, 24},
    {"Picture24", 16, 232, 528, 48},
    {"Picture25", 8, 8, 40, 32},
    {"Picture26", 55, 8, 40, 32},
    {"Picture27", 102, 8, 40, 32},
    {"Picture28", 149, 8, 40, 32},
    {"Picture29", 196, 8, 40, 32},
    {"Picture30", 243, 8, 40, 32},
    {"Picture31", 290, 8, 40, 32},
    {"Picture32", 337, 8, 40, 32},
    {"Picture33", 384, 8, 40, 32},
    {"Picture34", 431, 8, 40, 32},
    {"Picture35", 478, 8, 40, 32},

    {"Command36", 368, 300, 84, 28},
    {"Command24", 460, 300, 84, 28},
};

}  // namespace

const std::span<const Place> kSettingsPlaces = kPlaces;

}  // namespace lectern::ui
