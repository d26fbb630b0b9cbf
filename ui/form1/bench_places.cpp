// The keeper's bench for the pictures, beyond the window's right and top edge: the reader's window never
// shows it.
#include "ui/form1/places.h"

namespace lectern::ui {

namespace {

constexpr double kStartUpGrowth = 50.0 / 15;  // start-up moves the button down by 50 twips

constexpr Place kPlaces[] = {
    {"Frame5", 2000, -40, 916, 628},  {"Command26", 16, 32 - kStartUpGrowth, 120, 28},
    {"Command46", 804, 32, 96, 28},

    {"Frame6", 464, 72, 436, 228},    {"lbltm", 16, 24, 64, 20},
    {"lstmc(0)", 16, 48, 128, 72},    {"lstmc(1)", 152, 48, 128, 72},
    {"lstmc(2)", 288, 48, 132, 72},   {"List4", 16, 128, 96, 84},
    {"List5", 120, 128, 96, 84},      {"Dirpics", 224, 128, 96, 84},
    {"File3", 328, 128, 92, 84},

    {"Command38", 940, 380, 200, 28},
};

}  // namespace

const std::span<const Place> kBenchPlaces = kPlaces;

}  // namespace lectern::ui
