// The keeper's bench for the pictures, beyond the window's right and top edge: the reader's window never
// shows it.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr double kStartUpGrowth = 50.0 / 15;  // start-up moves the button down by 50 twips

// clang-format off
constexpr Place kPlaces[] = {
    {"Frame5",     2000,                 -40, 916, 628},
    {"Command26",    16, 32 - kStartUpGrowth, 120,  28},
    {"Label2",      152,                  37, 120,  20},
    {"lblendpic",   288,                  37,  80,  20},
    {"Command46",   804,                  32,  96,  28},

    {"Label3(0)",    16,                  76, 160,  20},
    {"selfile(0)",  184,                  72, 264,  26},
    {"Label3(1)",    16,                 108, 160,  20},
    {"selfile(1)",  184,                 104, 264,  26},
    {"Label3(2)",    16,                 140, 160,  20},
    {"selfile(2)",  184,                 136, 264,  26},

    {"Command49",    16,                 176, 160,  28},
    {"Command45",   184,                 176, 160,  28},
    {"Command47",   352,                 176,  96,  28},
    {"SSCommand1",   16,                 212,  48,  28},
    {"SSCommand2",   72,                 212,  48,  28},
    {"Command40",   184,                 212, 160,  28},
    {"Command48",   352,                 212,  96,  28},

    {"Frame6",      464,                  72, 436, 228},
    {"lbltm",        16,                  24,  64,  20},
    {"lstmc(0)",     16,                  48, 128,  72},
    {"lstmc(1)",    152,                  48, 128,  72},
    {"lstmc(2)",    288,                  48, 132,  72},
    {"List4",        16,                 128,  96,  84},
    {"List5",       120,                 128,  96,  84},
    {"Dirpics",     224,                 128,  96,  84},
    {"File3",       328,                 128,  92,  84},

    {"Dir2",         16,                 316, 200, 112},
    {"File2",        16,                 436, 200, 140},
    {"NME",          16,                 584, 200,  20},
    {"RTB1",        224,                 316, 328, 260},
    {"RTB2",        560,                 316, 340, 260},
    {"Command33",   744,                 584, 156,  28},

    {"Command38",   940,                 380, 200,  28},
};
// clang-format on

}  // namespace

const std::span<const Place> kBenchPlaces = kPlaces;

}  // namespace lectern::ui
