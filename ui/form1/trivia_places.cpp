// The question game: the question, the answer below it, the buttons at the foot.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

// clang-format off
constexpr Place kPlaces[] = {
    {"Picture17",   7,   7, 653, 260},

    {"lbltrivia",  16,  12, 621,  32, Look::kTitle},
    {"Label25",    16,  56, 621,  64, Look::kHeading},
    {"Label26",    16, 128, 621,  72, Look::kReading},
    {"List3",     312, 216,  64,  28},

    {"Command29",  16, 216, 112,  28},
    {"Command31", 136, 216, 112,  28},
    {"Command28", 525, 216, 112,  28},
};
// clang-format on

}  // namespace

const std::span<const Place> kTriviaPlaces = kPlaces;

}  // namespace lectern::ui
