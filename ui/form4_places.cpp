// The paint window, whose client area is 1045 by 699 pixels: the canvas at the left with an arrow at each of
// its sides and the zoom under it; at the right the colours, the brushes, the states that were kept, and what
// is done with the picture.
#include "ui/places.h"

namespace lectern::ui {

using enum forms::Anchor;
using enum Look;

namespace {

// clang-format off
constexpr Place kForm4Table[] = {
    {"Frame6",          56,   56,  561,  561, kFill},
    {"picbox",          14,   99,  533,  363, kCentre},
    {"imgs(0)",         16,  320,   32,   32, kMiddleLeft},
    {"imgs(1)",        320,   16,   32,   32, kTopCentre},
    {"imgs(2)",        625,  320,   32,   32, kMiddleRight},
    {"imgs(3)",        320,  625,   32,   32, kBottomCentre},
    {"imgp",             0,    0,    1,    1, kStorage},
    {"picbox2",          2,    0,    1,    1, kStorage},
    {"cmdm(0)",         56,  655,   72,   28, kBottomLeft},
    {"cmdm(1)",        136,  655,   72,   28, kBottomLeft},
    {"txt5",           216,  655,   40,   28, kBottomLeft},

    {"Picture1",       676,   16,  340,  236, kTopRight},
    {"clrbox(0)",       16,   16,   34,   34, kTopLeft},
    {"clrbox(1)",       58,   16,   34,   34, kTopLeft},
    {"clrbox(2)",      100,   16,   34,   34, kTopLeft},
    {"clrbox(3)",      142,   16,   34,   34, kTopLeft},
    {"clrbox(4)",      184,   16,   34,   34, kTopLeft},
    {"clrbox(5)",      226,   16,   34,   34, kTopLeft},
    {"clrbox(6)",       16,   58,   34,   34, kTopLeft},
    {"clrbox(7)",       58,   58,   34,   34, kTopLeft},
    {"clrbox(8)",      100,   58,   34,   34, kTopLeft},
    {"clrbox(9)",      142,   58,   34,   34, kTopLeft},
    {"clrbox(10)",     184,   58,   34,   34, kTopLeft},
    {"clrbox(11)",     226,   58,   34,   34, kTopLeft},
    {"clrbox(12)",      16,  100,   34,   34, kTopLeft},
    {"clrbox(13)",      58,  100,   34,   34, kTopLeft},
    {"clrbox(14)",     100,  100,   34,   34, kTopLeft},
    {"clrbox(15)",     142,  100,   34,   34, kTopLeft},
    {"clrbox(16)",     184,  100,   34,   34, kTopLeft},
    {"clrbox(17)",     226,  100,   34,   34, kTopLeft},
    {"clrbox(18)",      16,  142,   34,   34, kTopLeft},
    {"clrbox(19)",      58,  142,   34,   34, kTopLeft},
    {"clrbox(20)",     100,  142,   34,   34, kTopLeft},
    {"clrbox(21)",     142,  142,   34,   34, kTopLeft},
    {"clrbox(22)",     184,  142,   34,   34, kTopLeft},
    {"clrbox(23)",     226,  142,   34,   34, kTopLeft},
    {"clrboxs(0)",      16,   16,   34,   34, kTopLeft},
    {"clrboxs(1)",      58,   16,   34,   34, kTopLeft},
    {"clrboxs(2)",     100,   16,   34,   34, kTopLeft},
    {"clrboxs(3)",     142,   16,   34,   34, kTopLeft},
    {"clrboxs(4)",     184,   16,   34,   34, kTopLeft},
    {"clrboxs(5)",     226,   16,   34,   34, kTopLeft},
    {"clrboxs(6)",      16,   58,   34,   34, kTopLeft},
    {"clrboxs(7)",      58,   58,   34,   34, kTopLeft},
    {"clrboxs(8)",     100,   58,   34,   34, kTopLeft},
    {"clrboxs(9)",     142,   58,   34,   34, kTopLeft},
    {"clrboxs(10)",    184,   58,   34,   34, kTopLeft},
    {"clrboxs(11)",    226,   58,   34,   34, kTopLeft},
    {"clrboxs(12)",     16,  100,   34,   34, kTopLeft},
    {"clrboxs(13)",     58,  100,   34,   34, kTopLeft},
    {"clrboxs(14)",    100,  100,   34,   34, kTopLeft},
    {"clrboxs(15)",    142,  100,   34,   34, kTopLeft},
    {"clrboxs(16)",    184,  100,   34,   34, kTopLeft},
    {"clrboxs(17)",    226,  100,   34,   34, kTopLeft},
    {"clrboxs(18)",     16,  142,   34,   34, kTopLeft},
    {"clrboxs(19)",     58,  142,   34,   34, kTopLeft},
    {"clrboxs(20)",    100,  142,   34,   34, kTopLeft},
    {"clrboxs(21)",    142,  142,   34,   34, kTopLeft},
    {"clrboxs(22)",    184,  142,   34,   34, kTopLeft},
    {"clrboxs(23)",    226,  142,   34,   34, kTopLeft},
    {"clr2",           276,   16,   48,  160, kTopLeft},
    {"Command4",        16,  192,  104,   28, kTopLeft},
    {"Command3",       128,  192,  108,   28, kTopLeft},
    {"Command5",       244,  192,   80,   28, kTopLeft},

    {"Frame5",         676,  268,  340,  170, kTopRight},
    {"picpbs(0)",       16,   32,   14,  122, kTopLeft},
    {"picpbs(1)",       52,   32,   18,  122, kTopLeft},
    {"picpbs(2)",       92,   32,   20,  122, kTopLeft},
    {"picpbs(3)",      134,   32,   37,  122, kTopLeft},
    {"picpbs(4)",      193,   32,   45,  122, kTopLeft},
    {"picpbs(5)",      279,   32,   22,  122, kTopLeft},

    {"Frame7",         676,  454,  340,  185, kTopRight},
    {"IMGSPB(0)",       16,   36,   94,   64, kTopLeft},
    {"Line2",          120,   36,    1,  136, kTopLeft},
    {"IMGSPB(1)",      130,   36,   93,   64, kTopLeft},
    {"IMGSPB(2)",      231,   36,   93,   64, kTopLeft},
    {"IMGSPB(3)",      130,  108,   93,   64, kTopLeft},
    {"IMGSPB(4)",      231,  108,   93,   64, kTopLeft},

    {"Frame3",         676,  454,  340,  185, kTopRight},
    {"Label2(0)",       16,   24,   52,   20, kTopLeft},
    {"scr1(0)",         72,   24,  252,   20, kTopLeft},
    {"Label2(2)",       16,   60,   52,   20, kTopLeft},
    {"scr1(1)",         72,   60,  252,   20, kTopLeft},
    {"Label2(1)",       16,   96,   52,   20, kTopLeft},
    {"scr1(2)",         72,   96,  252,   20, kTopLeft},
    {"Text3",           72,  136,  104,   28, kTopLeft},
    {"Clear",          188,  136,  136,   28, kTopLeft},

    {"Command2",       676,  655,  166,   28, kBottomRight},
    {"Command1",       850,  655,  166,   28, kBottomRight},

    {"Frame2",        1056,   16,  300,  320, kStorage},
    {"Frame1",           8,   24,  280,  240, kTopLeft},
    {"mde(0)",         120,    8,   80,   24, kTopLeft},
    {"mde(1)",         120,   36,   80,   24, kTopLeft},
    {"mde(2)",         120,   64,   80,   24, kTopLeft},
    {"mde(3)",         120,   92,   80,   24, kTopLeft},
    {"mde(4)",         120,  120,   80,   24, kTopLeft},
    {"Label1(0)",        8,    8,  108,   20, kTopLeft},
    {"Label1(1)",        8,   36,  108,   20, kTopLeft},
    {"Label1(2)",        8,   64,  108,   20, kTopLeft},
    {"Label1(3)",        8,   92,  108,   20, kTopLeft},
    {"Label1(4)",        8,  120,  108,   20, kTopLeft},
    {"Label1(5)",        8,  148,  108,   20, kTopLeft},
    {"Label1(6)",        8,  176,  108,   20, kTopLeft},
    {"Label1(7)",        8,  204,  108,   20, kTopLeft},
    {"xpos",           120,  152,   80,   20, kTopLeft},
    {"ypos",           120,  180,   80,   20, kTopLeft},
    {"Text2",            8,  272,   80,   24, kTopLeft},
    {"Label3",          96,  272,   80,   24, kTopLeft},
    {"clr1",           184,  272,   40,   24, kTopLeft},
};
// clang-format on

}  // namespace

const std::span<const Place> kForm4Places = kForm4Table;

}  // namespace lectern::ui
