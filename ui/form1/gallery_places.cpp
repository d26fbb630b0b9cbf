// The strip of pictures along the bottom, and the viewer over the text.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

// clang-format off
constexpr Place kPlaces[] = {
    {"SSCommand4",  24,  40,  40,  56, Look::kTitle},
    {"SSCommand3", 852,  40,  40,  56, Look::kTitle},
    {"lblp(5)",     90,   6, 128,  16, Look::kCentreSmall},
    {"imgp(0)",     90,  24, 128,  88},
    {"lblp(0)",     90, 114, 128,  18, Look::kCentre},
    {"lblp(6)",    242,   6, 128,  16, Look::kCentreSmall},
    {"imgp(1)",    242,  24, 128,  88},
    {"lblp(1)",    242, 114, 128,  18, Look::kCentre},
    {"lblp(7)",    394,   6, 128,  16, Look::kCentreSmall},
    {"imgp(2)",    394,  24, 128,  88},
    {"lblp(2)",    394, 114, 128,  18, Look::kCentre},
    {"lblp(8)",    546,   6, 128,  16, Look::kCentreSmall},
    {"imgp(3)",    546,  24, 128,  88},
    {"lblp(3)",    546, 114, 128,  18, Look::kCentre},
    {"lblp(9)",    698,   6, 128,  16, Look::kCentreSmall},
    {"imgp(4)",    698,  24, 128,  88},
    {"lblp(4)",    698, 114, 128,  18, Look::kCentre},

    // Start-up puts the panel at 24, 16: with this size it ends where the text does.
    {"picp",        24,  16, 636, 464},
    {"LBLPICP",     52,  14, 340,  24, Look::kHeading},
    {"lblvs",      392,  16, 193,  20, Look::kRight},
    {"pick",        52,  46, 533, 363},
    {"picnm",       52, 424, 297,  20},
    {"Command32",  365, 420,  84,  28},
    {"Command37",  457, 420, 128,  28},
};
// clang-format on

}  // namespace

const std::span<const Place> kGalleryPlaces = kPlaces;

}  // namespace lectern::ui
