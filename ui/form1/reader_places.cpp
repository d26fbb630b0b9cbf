// The reading window itself: the text at the left; what is open, the chapter bar, the books and the version
// at the right; the tools below, and the strip of pictures along the bottom. The start lays the panels over
// the text, which leaves the tools and the books in sight.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

// clang-format off
constexpr Place kPlaces[] = {
    {"rtxt",       24,  24, 636, 456},

    {"lblbook",     0,   0,   0,   0},
    {"Label30",   676,  28,  52,  20},
    {"lblbk",     732,  24, 160,  28, Look::kHeading},
    {"Label21",   676,  58,  52,  20},
    {"lblc",      732,  54,  60,  28, Look::kHeading},
    {"scr",       676,  90, 216,  20},
    {"lst",       676, 122, 216, 298},
    {"LBLVR",     676, 430, 216,  20, Look::kStrong},
    {"optk",      676, 458,  22,  22},
    {"Label34",   700, 459,  60,  20},
    {"optn",      776, 458,  22,  22},
    {"Label35",   800, 459,  60,  20},

    {"Picture6",    0, 488, 916,  44},
    {"Command3",   24,   8, 101,  28},
    {"Command16", 131,   8, 101,  28},
    {"Command8",  238,   8, 101,  28},
    {"Command2",  345,   8, 101,  28},
    {"Command14", 452,   8, 101,  28},
    {"Command17", 559,   8, 101,  28},
    {"Command1",  791,   8, 101,  28},

    {"Picture5",    0, 532, 916, 136},
};
// clang-format on

}  // namespace

const std::span<const Place> kReaderPlaces = kPlaces;

}  // namespace lectern::ui
