// The concordance panel: words at the left, the verses of the chosen one at the right. The builder's panel
// lies off the window.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr Place kPlaces[] = {
    {"frmc", 53, 120, 600, 280},      {"lblwords", 16, 12, 200, 20},
    {"lstc", 16, 36, 220, 228},       {"lblw", 252, 8, 200, 28, Look::kHeading},
    {"lblmatches2", 472, 12, 64, 20}, {"text6", 536, 12, 48, 20, Look::kStrong},
    {"lstc2", 252, 36, 332, 184},     {"Command21", 252, 236, 156, 28},
    {"Command9", 424, 236, 160, 28},  {"LBLCC", 16, 12, 200, 20},

    {"Frame2", 1112, -56, 400, 480},  {"Command27", 16, 72, 104, 28},
    {"Command23", 128, 72, 104, 28},  {"Command13", 16, 108, 104, 28},
    {"Command18", 128, 108, 104, 28}, {"List2", 16, 148, 216, 220},
    {"wrd", 248, 72, 136, 20},        {"lbln", 248, 100, 136, 20},
    {"Label32", 248, 128, 136, 20},   {"books", 248, 156, 136, 20},
    {"Text1", 248, 184, 136, 28},     {"Text2", 248, 220, 136, 28},
    {"pbar2", 16, 384, 368, 16},      {"pbar3", 16, 408, 368, 16},
};

}  // namespace

const std::span<const Place> kConcordancePlaces = kPlaces;

}  // namespace lectern::ui
