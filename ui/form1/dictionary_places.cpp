// The dictionary: the words at the left, the entry at the right. There is room for a long verse.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr Place kPlaces[] = {
    {"frmd", 16, 24, 652, 480},

    {"lstd", 16, 16, 192, 448},

    {"dwd2", 225, 17, 412, 32, Look::kTitle},
    {"dwd", 224, 16, 412, 32, Look::kTitle},
    {"ddf2", 225, 65, 412, 152, Look::kReading},
    {"ddf", 224, 64, 412, 152, Look::kReading},
    {"dex2", 225, 225, 412, 200, Look::kReading},
    {"dex", 224, 224, 412, 200, Look::kReading},

    {"Command19", 492, 436, 144, 28},
};

}  // namespace

const std::span<const Place> kDictionaryPlaces = kPlaces;

}  // namespace lectern::ui
