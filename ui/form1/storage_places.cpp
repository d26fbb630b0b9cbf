// What lies beyond the window's right edge: the program's storage and the keeper's tools.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

// clang-format off
constexpr Place kPlaces[] = {
    {"Frame1",    940,   8, 200, 240},
    {"Dir1",        8,   8, 180,  60},
    {"Dir3",        8,  72, 180,  60},
    {"FRMMARK",     8, 140, 180,  40},
    {"Label22",     8,   8, 160,  20},
    {"List1",     940, 256, 200,  80},
    {"Command12", 940, 344, 200,  28},
};
// clang-format on

}  // namespace

const std::span<const Place> kStoragePlaces = kPlaces;

}  // namespace lectern::ui
