// The dictionary: the words at the left, the entry at the right. There is room for a long verse.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr Place kPlaces[] = {
    {"frmd", 16, 24, 656, 480},

    {"lstd", 16, 16, 208, 448},

    {"dwd2", 241, 17, 400, 32, Look::kTitle},
    {"dwd", 240, 16, 400, 32, Look::kTitle},
    {"ddf2", 241, 57, 400, 152},
    {"ddf", 240, 56, 400, 152},
    {"dex2", 241, 225, 400, 192},
    {"dex", 240, 224, 400, 192},

    {"Command19", 496, 436, 144, 28},
};

}  // namespace

const std::span<const Place> kDictionaryPlaces = kPlaces;

}  // namespace lectern::ui
