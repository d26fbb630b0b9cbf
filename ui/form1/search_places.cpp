// The search panel: the terms and the scope at the left, what was found at the right. It leaves the lower
// part of the text free, where the marks of a chapter that was opened from it can be seen.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr Place kPlaces[] = {
    {"frms", 53, 120, 600, 240},      {"lblfor", 16, 20, 32, 20},
    {"txts", 52, 16, 212, 28},        {"lbland", 16, 56, 32, 20},
    {"txts2", 52, 52, 212, 28},       {"SSOption1", 52, 88, 92, 24},
    {"op1", 152, 88, 112, 24},        {"Command22", 52, 120, 100, 28},
    {"Command20", 160, 120, 104, 28}, {"Command15", 52, 156, 212, 28},

    {"frmscale", 16, 188, 264, 48},   {"text7", 0, 0, 150, 18, Look::kSmall},
    {"pbar", 0, 22, 150, 16},         {"Command25", 160, 14, 88, 28},

    {"lblmatches", 288, 12, 60, 20},  {"text5", 352, 12, 80, 20, Look::kStrong},
    {"lsts", 288, 36, 296, 152},      {"cmdadd", 288, 196, 296, 28},
};

}  // namespace

const std::span<const Place> kSearchPlaces = kPlaces;

}  // namespace lectern::ui
