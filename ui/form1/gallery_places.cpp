// The strip of pictures along the bottom, and the viewer over the text.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr Place kPlaces[] = {
    {"SSCommand4", 16, 48, 40, 56, Look::kTitle},
    {"SSCommand3", 860, 48, 40, 56, Look::kTitle},
    {"lblp(5)", 90, 8, 128, 16, Look::kCentreSmall},
    {"imgp(0)", 90, 26, 128, 96},
    {"lblp(0)", 90, 124, 128, 18, Look::kCentre},
    {"lblp(6)", 242, 8, 128, 16, Look::kCentreSmall},
    {"imgp(1)", 242, 26, 128, 96},
    {"lblp(1)", 242, 124, 128, 18, Look::kCentre},
    {"lblp(7)", 394, 8, 128, 16, Look::kCentreSmall},
    {"imgp(2)", 394, 26, 128, 96},
    {"lblp(2)", 394, 124, 128, 18, Look::kCentre},
    {"lblp(8)", 546, 8, 128, 16, Look::kCentreSmall},
    {"imgp(3)", 546, 26, 128, 96},
    {"lblp(3)", 546, 124, 128, 18, Look::kCentre},
    {"lblp(9)", 698, 8, 128, 16, Look::kCentreSmall},
    {"imgp(4)", 698, 26, 128, 96},
    {"lblp(4)", 698, 124, 128, 18, Look::kCentre},

    // Start-up puts the panel at 24, 16: with this size it ends where the text does.
    {"picp", 24, 16, 644, 494},
    {"LBLPICP", 58, 12, 300, 24, Look::kHeading},
    {"lblvs", 358, 14, 228, 20, Look::kRight},
    {"pick", 58, 40, 528, 396},
    {"picnm", 58, 450, 296, 22},
    {"Command32", 370, 446, 80, 28},
    {"Command37", 458, 446, 128, 28},
};

}  // namespace

const std::span<const Place> kGalleryPlaces = kPlaces;

}  // namespace lectern::ui
