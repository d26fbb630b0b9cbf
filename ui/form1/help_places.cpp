// Help: the topics at the left, the text at the right, and two ways to close. The start puts the panel at
// (53, 24).
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr double kStart = 160.0 / 3;  // pixels: 800 twips

// clang-format off
constexpr Place kPlaces[] = {
    {"frmhelp",    kStart,  24, 607, 456},
    {"Label19(4)",     16,  14, 112,  24, Look::kHeading},
    {"lblhp(0)",       10,  52, 118,  24},
    {"lblhp(1)",       10,  84, 118,  24},
    {"lblhp(2)",       10, 116, 118,  24},
    {"lblhp(3)",       10, 148, 118,  24},
    {"lblhp(4)",       10, 180, 118,  24},
    {"lblhp(5)",       10, 212, 118,  24},
    {"lblhp(6)",       10, 244, 118,  24},
    {"lblhp(7)",       10, 276, 118,  24},
    {"txthelp",       144,  52, 447, 352},
    {"Command4",      479,  12, 112,  28},
    {"Command44",     479, 412, 112,  28},
};
// clang-format on

}  // namespace

const std::span<const Place> kHelpPlaces = kPlaces;

}  // namespace lectern::ui
