// The search panel: the terms and the scope at the left, what was found at the right. It leaves the lower
// part of the text free, where the marks of a chapter that was opened from it can be seen.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

// clang-format off
constexpr Place kPlaces[] = {
    {"frms",        53, 120, 600, 240},
    {"lblfor",      16,  20,  32,  20},
    {"txts",        52,  16, 272,  28},
    {"lbland",      16,  56,  32,  20},
    {"txts2",       52,  52, 272,  28},
    {"SSOption1",   52,  88,  92,  24},
    {"op1",        152,  88, 112,  24},
    {"Command22",   16, 120, 150,  28},
    {"Command20",  174, 120, 150,  28},
    {"Command15",   16, 156, 150,  28},
    {"cmdadd",     174, 156, 150,  28},

    {"frmscale",    16, 192, 308,  36},
    {"text7",        0,   0, 150,  18, Look::kSmall},
    {"pbar",         0,  20, 150,  12},
    {"Command25",  158,   4, 150,  28},

    {"lblmatches", 340,  12,  60,  20},
    {"text5",      404,  12,  80,  20, Look::kStrong},
    {"lsts",       340,  36, 244, 188},
};
// clang-format on

}  // namespace

const std::span<const Place> kSearchPlaces = kPlaces;

}  // namespace lectern::ui
