// The bookmarks: the one in hand at the left, as on a card, the strip that steps its chapter, and the
// buttons; the list at the right. The start puts the panel at (53, 120), the strip at the same place inside
// it, and lowers Command30 by the three and a third pixels that its place here is short of.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr double kStart = 160.0 / 3;  // pixels: 800 twips
constexpr double kLowered = 10.0 / 3;

// clang-format off
constexpr Place kPlaces[] = {
    {"Picture1",   kStart,            120,       600, 296},
    {"Label19(3)",     16,             12,       264,  24, Look::kHeading},

    {"LBLMRK(0)",      16,             44,       264,  24, Look::kCentreStrong},
    {"LBLMRK(1)",      16,             68,       264,  20, Look::kCentre},
    {"C(4)",           16,             92,       128,  20, Look::kRight},
    {"LBLMRK(2)",     152,             92,       128,  20},
    {"Picture2",   kStart,            120, 570.0 / 3,  44},

    {"Command5",       16,            180,       128,  28},
    {"Command6",      152,            180,       128,  28},
    {"Command10",      16,            216,       128,  28},
    {"Command11",     152,            216,       128,  28},
    {"Command30",      16, 252 - kLowered,       128,  28},
    {"Command7",      152,            252,       128,  28},

    {"File1",         296,             16,       288, 264},
};
// clang-format on

}  // namespace

const std::span<const Place> kBookmarkPlaces = kPlaces;

}  // namespace lectern::ui
