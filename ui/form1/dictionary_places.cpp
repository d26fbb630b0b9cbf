// The dictionary: the words at the left, the entry at the right. There is room for a long verse.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

// clang-format off
constexpr Place kPlaces[] = {
    {"frmd",       16,  24, 644, 456},

    {"lstd",       16,  16, 184, 424},

    {"dwd2",      218,  18, 412,  32, Look::kTitle},
    {"dwd",       216,  16, 412,  32, Look::kTitle},
    {"ddf2",      217,  65, 412, 148, Look::kReading},
    {"ddf",       216,  64, 412, 148, Look::kReading},
    {"linedic",   216, 222, 412,   1},
    {"dex2",      217, 233, 412, 164, Look::kReading},
    {"dex",       216, 232, 412, 164, Look::kReading},

    {"Command19", 484, 412, 144,  28},
};
// clang-format on

}  // namespace

const std::span<const Place> kDictionaryPlaces = kPlaces;

}  // namespace lectern::ui
