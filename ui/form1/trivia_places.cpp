// The question game: the question, the answer below it, the buttons at the foot.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr Place kPlaces[] = {
    {"Picture17", 7, 7, 656, 400},

    {"lbltrivia", 16, 24, 624, 32, Look::kTitle},
    {"Label25", 48, 88, 560, 96, Look::kHeading},
    {"Label26", 48, 200, 560, 96, Look::kHeading},
    {"List3", 16, 304, 64, 24},

    {"Command29", 16, 356, 112, 28},
    {"Command31", 136, 356, 112, 28},
    {"Command28", 528, 356, 112, 28},
};

}  // namespace

const std::span<const Place> kTriviaPlaces = kPlaces;

}  // namespace lectern::ui
