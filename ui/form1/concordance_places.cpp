// The concordance panel: words at the left, the verses of the chosen one at the right. The builder's panel
// lies off the window: what it does in a row above, the words at the left, how far it is at the right.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

// clang-format off
constexpr Place kPlaces[] = {
    {"frmc",          53, 120, 600, 264},
    {"lblwords",      16,  12, 180,  20},
    {"LBLCC",          0,   0,   0,   0},
    {"lstc",          16,  36, 180, 212},
    {"lblw",         212,   8, 240,  28, Look::kHeading},
    {"lblmatches2",  464,  12,  64,  20, Look::kRight},
    {"text6",        536,  12,  48,  20, Look::kStrong},
    {"lstc2",        212,  36, 372, 176},
    {"Command21",    212, 220, 182,  28},
    {"Command9",     402, 220, 182,  28},

    {"Frame2",      1112, -56, 916, 628},
    {"Command27",     16,  32, 112,  28},
    {"Command23",    136,  32, 112,  28},
    {"Command13",    256,  32, 112,  28},
    {"Command18",    376,  32, 112,  28},
    {"List2",         16,  76, 352, 536},
    {"wrd",          392,  76, 508,  28, Look::kHeading},
    {"Label32",      392, 116, 376,  20},
    {"lbln",         780, 116, 120,  20, Look::kRight},
    {"pbar2",        392, 144, 508,  16},
    {"books",        392, 176, 508,  20},
    {"pbar3",        392, 204, 508,  16},
    {"Text2",        392, 240, 160,  28},
    {"Text1",        560, 240, 160,  28},
};
// clang-format on

}  // namespace

const std::span<const Place> kConcordancePlaces = kPlaces;

}  // namespace lectern::ui
