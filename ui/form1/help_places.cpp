// Help: the topics at the left, the text at the right, and two ways to close. The start puts the panel at
// (53, 24).
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr double kStart = 160.0 / 3;  // pixels: 800 twips

constexpr Place kPlaces[] = {
    {"frmhelp", kStart, 24, 616, 486}, {"Label19(4)", 16, 14, 112, 24, Look::kHeading},
    {"lblhp(0)", 16, 50, 112, 24},     {"lblhp(1)", 16, 82, 112, 24},
    {"lblhp(2)", 16, 114, 112, 24},    {"lblhp(3)", 16, 146, 112, 24},
    {"lblhp(4)", 16, 178, 112, 24},    {"lblhp(5)", 16, 210, 112, 24},
    {"lblhp(6)", 16, 242, 112, 24},    {"lblhp(7)", 16, 274, 112, 24},
    {"txthelp", 144, 48, 456, 382},    {"Command4", 504, 12, 96, 28},
    {"Command44", 504, 442, 96, 28},
};

}  // namespace

const std::span<const Place> kHelpPlaces = kPlaces;

}  // namespace lectern::ui
