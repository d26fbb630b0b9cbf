// The question game: the question, the answer below it, the buttons at the foot.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr Place kPlaces[] = {
    {"Picture17", 7, 7, 656, 304},

    {"lbltrivia", 16, 16, 624, 32, Look::kTitle},
    {"Label25", 16, 72, 624, 64, Look::kHeading},
    {"Label26", 16, 152, 624, 80, Look::kReading},
    {"List3", 312, 260, 64, 28},

    {"Command29", 16, 260, 112, 28},
    {"Command31", 136, 260, 112, 28},
    {"Command28", 528, 260, 112, 28},
};

}  // namespace

const std::span<const Place> kTriviaPlaces = kPlaces;

}  // namespace lectern::ui
