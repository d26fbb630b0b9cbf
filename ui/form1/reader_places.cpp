// The reading window itself: tools at the top, the text at the left, the books and the chapter bar at the
// right, the strip of pictures along the bottom.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr Place kPlaces[] = {
    {"Picture6", 0, 0, 916, 42},
    {"Command3", 16, 8, 104, 28},
    {"Command16", 126, 8, 88, 28},
    {"Command8", 220, 8, 116, 28},
    {"Command2", 342, 8, 80, 28},
    {"Command14", 428, 8, 80, 28},
    {"Command17", 514, 8, 104, 28},
    {"Command1", 820, 8, 80, 28},

    {"lblbook", 0, 0, 0, 0},
    {"Label30", 16, 57, 58, 20},
    {"lblbk", 74, 48, 232, 32, Look::kTitle},
    {"Label21", 310, 57, 60, 20},
    {"lblc", 370, 48, 60, 32, Look::kTitle},
    {"LBLVR", 440, 57, 228, 20, Look::kRight},
    {"rtxt", 16, 86, 652, 424},

    {"optk", 684, 55, 22, 22},
    {"Label34", 708, 57, 60, 20},
    {"optn", 784, 55, 22, 22},
    {"Label35", 808, 57, 60, 20},
    {"lst", 684, 86, 216, 394},
    {"scr", 684, 488, 216, 22},

    {"Picture5", 0, 520, 916, 148},
};

}  // namespace

const std::span<const Place> kReaderPlaces = kPlaces;

}  // namespace lectern::ui
