// The concordance panel: words at the left, the verses of the chosen one at the right. The builder's panel
// lies off the window.
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

    {"Frame2",      1112, -56, 400, 480},
    {"Command27",     16,  72, 104,  28},
    {"Command23",    128,  72, 104,  28},
    {"Command13",     16, 108, 104,  28},
    {"Command18",    128, 108, 104,  28},
    {"List2",         16, 148, 216, 220},
    {"wrd",          248,  72, 136,  20},
    {"lbln",         248, 100, 136,  20},
    {"Label32",      248, 128, 136,  20},
    {"books",        248, 156, 136,  20},
    {"Text1",        248, 184, 136,  28},
    {"Text2",        248, 220, 136,  28},
    {"pbar2",         16, 384, 368,  16},
    {"pbar3",         16, 408, 368,  16},
};
// clang-format on

}  // namespace

const std::span<const Place> kConcordancePlaces = kPlaces;

}  // namespace lectern::ui
