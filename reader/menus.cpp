#include "reader/menus.h"

namespace lectern::reader {

Menus::Menus(forms::Window& form)
    : ff(form, "ff", {.caption = "&File"}),
      xb(ff, "xb", {.caption = "&Bookmarker"}),
      ff0(ff, "ff0", {.caption = "-"}),
      xx(ff, "xx", {.caption = "E&xit"}),
      cc(form, "cc", {.caption = "C&odex"}),
      cc0(cc, "cc0", {.caption = "&Notes"}),
      cc1(cc, "cc1", {.caption = "&Concordance"}),
      cc2(cc, "cc2", {.caption = "&Dictionary"}),
      cc3(cc, "cc3", {.caption = "&Search"}),
      cc4(cc, "cc4", {.caption = "&Trivia"}),
      dd1(form, "dd1", {.caption = "Codex &Stories"}),
      oo(form, "oo", {.caption = "O&ptions"}),
      oo11(oo, "oo11", {.caption = "Fonts/Desktop"}),
      oo12(oo, "oo12", {.caption = "Save settings on exit", .checked = true}),
      webb(form, "webb", {.caption = "Internet"}),
      webb1(webb, "webb1", {.caption = "Lectern"}),
      webb2(webb, "webb2", {.caption = "My Main Page"}),
      xh(form, "xh", {.caption = "&Help"}),
      aboutlt(xh, "aboutlt", {.caption = "About"}),
      xh2(xh, "xh2", {.caption = "Help"}) {}

}  // namespace lectern::reader
