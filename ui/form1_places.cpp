// The main window, with a client area of 916 by 668 pixels. The panels cover the text, but not the tool
// buttons and the books.
#include "ui/places.h"

namespace lectern::ui {

using enum forms::Anchor;
using enum Look;

namespace {

constexpr double k800 = 800.0 / 15;  // 800 and 100 twips, not whole pixels
constexpr double k100 = 100.0 / 15;

// clang-format off
constexpr Place kForm1Table[] = {
    // The text; to its right the position, the chapter bar, the books and the versions; below, the tool buttons
    // and the strip of pictures.
    {"rtxt",            24,   24,  636,  456, kFill},
    {"lblbook",          0,    0,    0,    0, kStorage},
    {"Label30",        676,   28,   52,   20, kTopRight},
    {"lblbk",          732,   24,  160,   28, kTopRight, kHeading},
    {"Label21",        676,   58,   52,   20, kTopRight},
    {"lblc",           732,   54,   60,   28, kTopRight, kHeading},
    {"scr",            676,   90,  216,   20, kTopRight},
    {"lst",            676,  122,  216,  298, kRight},
    {"LBLVR",          676,  430,  216,   20, kBottomRight, kStrong},
    {"optk",           676,  458,   22,   22, kBottomRight},
    {"Label34",        700,  459,   60,   20, kBottomRight},
    {"optn",           776,  458,   22,   22, kBottomRight},
    {"Label35",        800,  459,   60,   20, kBottomRight},

    {"Picture6",         0,  488,  916,   44, kBottom},
    {"Command3",        24,    8,  101,   28, kTopLeft},
    {"Command16",      131,    8,  101,   28, kTopLeft},
    {"Command8",       238,    8,  101,   28, kTopLeft},
    {"Command2",       345,    8,  101,   28, kTopLeft},
    {"Command14",      452,    8,  101,   28, kTopLeft},
    {"Command17",      559,    8,  101,   28, kTopLeft},
    {"Command1",       791,    8,  101,   28, kTopRight},

    {"Picture5",         0,  532,  916,  136, kFoot},
    {"SSCommand4",      24,   40,   40,   56, kMiddleLeft, kTitle},
    {"SSCommand3",     852,   40,   40,   56, kMiddleRight, kTitle},
    {"lblp(5)",         90,    6,  128,   16, kShare, kCentredSmall},
    {"imgp(0)",         90,   24,  128,   88, kShare},
    {"lblp(0)",         90,  114,  128,   18, kShare, kCentred},
    {"lblp(6)",        242,    6,  128,   16, kShare, kCentredSmall},
    {"imgp(1)",        242,   24,  128,   88, kShare},
    {"lblp(1)",        242,  114,  128,   18, kShare, kCentred},
    {"lblp(7)",        394,    6,  128,   16, kShare, kCentredSmall},
    {"imgp(2)",        394,   24,  128,   88, kShare},
    {"lblp(2)",        394,  114,  128,   18, kShare, kCentred},
    {"lblp(8)",        546,    6,  128,   16, kShare, kCentredSmall},
    {"imgp(3)",        546,   24,  128,   88, kShare},
    {"lblp(3)",        546,  114,  128,   18, kShare, kCentred},
    {"lblp(9)",        698,    6,  128,   16, kShare, kCentredSmall},
    {"imgp(4)",        698,   24,  128,   88, kShare},
    {"lblp(4)",        698,  114,  128,   18, kShare, kCentred},

    // The viewer.
    {"picp",            24,   16,  636,  464, kTopLeft},
    {"LBLPICP",         52,   14,  340,   24, kTop, kHeading},
    {"lblvs",          392,   16,  193,   20, kTopRight, kFlushRight},
    {"pick",            52,   46,  533,  363, kFill},
    {"picnm",           52,  424,  297,   20, kBottom},
    {"Command32",      365,  420,   84,   28, kBottomRight},
    {"Command37",      457,  420,  128,   28, kBottomRight},

    // Search: terms and scope on the left, the verses found on the right.
    {"frms",           k800,  120,  600,  240, kTopLeft},
    {"lblfor",          16,   20,   32,   20, kTopLeft},
    {"txts",            52,   16,  272,   28, kTopLeft},
    {"lbland",          16,   56,   32,   20, kTopLeft},
    {"txts2",           52,   52,  272,   28, kTopLeft},
    {"SSOption1",       52,   88,   92,   24, kTopLeft},
    {"op1",            152,   88,  112,   24, kTopLeft},
    {"Command22",       16,  120,  150,   28, kTopLeft},
    {"Command20",      174,  120,  150,   28, kTopLeft},
    {"Command15",       16,  156,  150,   28, kTopLeft},
    {"cmdadd",         174,  156,  150,   28, kTopLeft},
    {"frmscale",        16,  192,  308,   36, kTopLeft},
    {"text7",            0,    0,  150,   18, kTopLeft, kSmall},
    {"pbar",             0,   20,  150,   12, kTopLeft},
    {"Command25",      158,    4,  150,   28, kTopLeft},
    {"lblmatches",     340,   12,   60,   20, kTopLeft},
    {"text5",          404,   12,   80,   20, kTopLeft, kStrong},
    {"lsts",           340,   36,  244,  188, kFill},

    // Concordance: the words on the left, the verses of the selected word on the right.
    {"frmc",           k800,  120,  600,  264, kTopLeft},
    {"lblwords",        16,   12,  180,   20, kTopLeft},
    {"LBLCC",            0,    0,    0,    0, kStorage},
    {"lstc",            16,   36,  180,  212, kLeft},
    {"lblw",           212,    8,  240,   28, kTop, kHeading},
    {"lblmatches2",    464,   12,   64,   20, kTopRight, kFlushRight},
    {"text6",          536,   12,   48,   20, kTopRight, kStrong},
    {"lstc2",          212,   36,  372,  176, kFill},
    {"Command21",      212,  220,  182,   28, kBottomRight},
    {"Command9",       402,  220,  182,   28, kBottomRight},

    // Dictionary: the words on the left, the entry on the right.
    {"frmd",            16,   24,  644,  456, kTopLeft},
    {"lstd",            16,   16,  184,  424, kLeft},
    {"dwd2",           218,   18,  412,   32, kTop, kTitle},
    {"dwd",            216,   16,  412,   32, kTop, kTitle},
    {"ddf2",           217,   65,  412,  148, kTop, kReading},
    {"ddf",            216,   64,  412,  148, kTop, kReading},
    {"linedic",        216,  222,  412,    1, kTop},
    {"dex2",           217,  233,  412,  164, kFill, kReading},
    {"dex",            216,  232,  412,  164, kFill, kReading},
    {"Command19",      484,  412,  144,   28, kBottomRight},

    // Trivia.
    {"Picture17",     k100, k100,  653,  260, kTopLeft},
    {"lbltrivia",       16,   12,  621,   32, kTop, kTitle},
    {"Label25",         16,   56,  621,   64, kTop, kHeading},
    {"Label26",         16,  128,  621,   72, kFill, kReading},
    {"List3",          312,  216,   64,   28, kBottomLeft},
    {"Command29",       16,  216,  112,   28, kBottomLeft},
    {"Command31",      136,  216,  112,   28, kBottomLeft},
    {"Command28",      525,  216,  112,   28, kBottomRight},

    // Bookmarks: the current one on the left, the list on the right.
    {"Picture1",       k800,  120,  600,  296, kTopLeft},
    {"Label19(3)",      16,   12,  264,   24, kTopLeft, kHeading},
    {"LBLMRK(0)",       16,   44,  264,   24, kTopLeft, kCentredStrong},
    {"LBLMRK(1)",       16,   68,  264,   20, kTopLeft, kCentred},
    {"C(4)",            16,   92,  128,   20, kTopLeft, kFlushRight},
    {"LBLMRK(2)",      152,   92,  128,   20, kTopLeft},
    {"Picture2",       k800,  120,  190,   44, kTopLeft},
    {"Command5",        16,  180,  128,   28, kTopLeft},
    {"Command6",       152,  180,  128,   28, kTopLeft},
    {"Command10",       16,  216,  128,   28, kTopLeft},
    {"Command11",      152,  216,  128,   28, kTopLeft},
    {"Command30",       16,  252,  128,   28, kTopLeft},
    {"Command7",       152,  252,  128,   28, kTopLeft},
    {"File1",          296,   16,  288,  264, kFill},

    // Help: the topics on the left, the text on the right.
    {"frmhelp",        k800,   24,  607,  456, kTopLeft},
    {"Label19(4)",      16,   14,  112,   24, kTopLeft, kHeading},
    {"lblhp(0)",        10,   52,  118,   24, kTopLeft},
    {"lblhp(1)",        10,   84,  118,   24, kTopLeft},
    {"lblhp(2)",        10,  116,  118,   24, kTopLeft},
    {"lblhp(3)",        10,  148,  118,   24, kTopLeft},
    {"lblhp(4)",        10,  180,  118,   24, kTopLeft},
    {"lblhp(5)",        10,  212,  118,   24, kTopLeft},
    {"lblhp(6)",        10,  244,  118,   24, kTopLeft},
    {"lblhp(7)",        10,  276,  118,   24, kTopLeft},
    {"txthelp",        144,   52,  447,  352, kFill},
    {"Command4",       479,   12,  112,   28, kTopRight},
    {"Command44",      479,  412,  112,   28, kBottomRight},

    // Fonts and colours: the font on the left, samples on the right, colours below.
    {"Picture23",      k800,  120,  600,  328, kTopLeft},
    {"lblsetting(0)",   16,   12,  568,   24, kTop, kHeading},
    {"lblsetting(1)",   16,   52,   48,   20, kTopLeft},
    {"Combo1",          72,   48,  216,   28, kTopLeft},
    {"lblsetting(2)",   16,   88,   48,   20, kTopLeft},
    {"Combo2",          72,   84,  216,   28, kTopLeft},
    {"lblsetting(3)",   16,  124,   48,   20, kTopLeft},
    {"Combo3",          72,  120,  216,   28, kTopLeft},
    {"lblf(0)",        304,   48,  280,   48, kTop, kCentred},
    {"lblf(1)",        304,  100,  280,   48, kTop, kCentred},
    {"lblsetting(4)",   16,  164,  568,   20, kTop, kStrong},
    {"Option2",         16,  188,  128,   24, kTopLeft},
    {"Option3",        152,  188,  128,   24, kTopLeft},
    {"Picture24",       16,  220,  568,   48, kTop},
    {"Picture25",        7,    8,   44,   32, kTopLeft},
    {"Picture26",       58,    8,   44,   32, kTopLeft},
    {"Picture27",      109,    8,   44,   32, kTopLeft},
    {"Picture28",      160,    8,   44,   32, kTopLeft},
    {"Picture29",      211,    8,   44,   32, kTopLeft},
    {"Picture30",      262,    8,   44,   32, kTopLeft},
    {"Picture31",      313,    8,   44,   32, kTopLeft},
    {"Picture32",      364,    8,   44,   32, kTopLeft},
    {"Picture33",      415,    8,   44,   32, kTopLeft},
    {"Picture34",      466,    8,   44,   32, kTopLeft},
    {"Picture35",      517,    8,   44,   32, kTopLeft},
    {"Command36",      396,  284,   90,   28, kBottomRight},
    {"Command24",      494,  284,   90,   28, kBottomRight},

    // The second text pane. Nothing opens it, and it has no size.
    {"Picture4",       k800,  120,    0,    0, kTopLeft},
    {"RTXT2",            0,    0,    0,    0, kFill},
    {"Label36",          0,    0,    0,    0, kTop},
    {"Command34",        0,    0,    0,    0, kTopRight},

    // Maintenance tools: the concordance builder, the catalogue of pictures, and a button.
    {"Frame2",        1112,  -56,  916,  628, kStorage},
    {"Command27",       16,   32,  112,   28, kTopLeft},
    {"Command23",      136,   32,  112,   28, kTopLeft},
    {"Command13",      256,   32,  112,   28, kTopLeft},
    {"Command18",      376,   32,  112,   28, kTopLeft},
    {"List2",           16,   76,  352,  536, kLeft},
    {"wrd",            392,   76,  508,   28, kTop, kHeading},
    {"Label32",        392,  116,  376,   20, kTop},
    {"lbln",           780,  116,  120,   20, kTopRight, kFlushRight},
    {"pbar2",          392,  144,  508,   16, kTop},
    {"books",          392,  176,  508,   20, kTop},
    {"pbar3",          392,  204,  508,   16, kTop},
    {"Text2",          392,  240,  160,   28, kTopLeft},
    {"Text1",          560,  240,  160,   28, kTopLeft},

    {"Frame5",        2000,  -40,  916,  628, kStorage},
    {"Command26",       16,   32,  120,   28, kTopLeft},
    {"Label2",         152,   37,  120,   20, kTopLeft},
    {"lblendpic",      288,   37,   80,   20, kTopLeft},
    {"Command46",      804,   32,   96,   28, kTopRight},
    {"Label3(0)",       16,   76,  160,   20, kTopLeft},
    {"selfile(0)",     184,   72,  264,   26, kTopLeft},
    {"Label3(1)",       16,  108,  160,   20, kTopLeft},
    {"selfile(1)",     184,  104,  264,   26, kTopLeft},
    {"Label3(2)",       16,  140,  160,   20, kTopLeft},
    {"selfile(2)",     184,  136,  264,   26, kTopLeft},
    {"Command49",       16,  176,  160,   28, kTopLeft},
    {"Command45",      184,  176,  160,   28, kTopLeft},
    {"Command47",      352,  176,   96,   28, kTopLeft},
    {"SSCommand1",      16,  212,   48,   28, kTopLeft},
    {"SSCommand2",      72,  212,   48,   28, kTopLeft},
    {"Command40",      184,  212,  160,   28, kTopLeft},
    {"Command48",      352,  212,   96,   28, kTopLeft},
    {"Frame6",         464,   72,  436,  228, kTop},
    {"lbltm",           16,   24,   64,   20, kTopLeft},
    {"lstmc(0)",        16,   48,  128,   72, kTopLeft},
    {"lstmc(1)",       152,   48,  128,   72, kTopLeft},
    {"lstmc(2)",       288,   48,  132,   72, kTopLeft},
    {"List4",           16,  128,   96,   84, kTopLeft},
    {"List5",          120,  128,   96,   84, kTopLeft},
    {"Dirpics",        224,  128,   96,   84, kTopLeft},
    {"File3",          328,  128,   92,   84, kTopLeft},
    {"Dir2",            16,  316,  200,  112, kTopLeft},
    {"File2",           16,  436,  200,  140, kLeft},
    {"NME",             16,  584,  200,   20, kBottomLeft},
    {"RTB1",           224,  316,  328,  260, kLeft},
    {"RTB2",           560,  316,  340,  260, kFill},
    {"Command33",      744,  584,  156,   28, kBottomRight},
    {"Command38",      940,  380,  200,   28, kStorage},

    // Storage.
    {"Frame1",         940,    8,  200,  240, kStorage},
    {"Dir1",             8,    8,  180,   60, kTopLeft},
    {"Dir3",             8,   72,  180,   60, kTopLeft},
    {"FRMMARK",          8,  140,  180,   40, kTopLeft},
    {"Label22",          8,    8,  160,   20, kTopLeft},
    {"List1",          940,  256,  200,   80, kStorage},
    {"Command12",      940,  344,  200,   28, kStorage},
};
// clang-format on

}  // namespace

const std::span<const Place> kForm1Places = kForm1Table;

}  // namespace lectern::ui
