#include "reader/panels.h"

namespace lectern::reader {

Panels::Panels(forms::Window& form)
    : Picture6(form, "Picture6"),
      Picture5(form, "Picture5"),
      picp(form, "picp", {.visible = false, .name = "Picture"}),
      frms(form, "frms", {.visible = false, .name = "Search"}),
      frmc(form, "frmc", {.visible = false, .name = "Concordance"}),
      frmhelp(form, "frmhelp", {.visible = false, .name = "Help"}),
      Picture17(form, "Picture17", {.visible = false, .name = "Trivia"}),
      Picture1(form, "Picture1", {.visible = false, .name = "Bookmarks"}),
      Picture2(Picture1, "Picture2", {.name = "Sweep the pointer to step through the chapters"}),
      Picture23(form, "Picture23", {.visible = false, .name = "Fonts and desktop"}),
      frmd(form, "frmd", {.visible = false, .name = "Dictionary"}),
      Picture4(form, "Picture4", {.visible = false, .name = "Second text"}),
      frmscale(frms, "frmscale", {.visible = false, .name = "Progress"}),
      Frame1(form, "Frame1"),
      FRMMARK(Frame1, "FRMMARK"),
      Label22(FRMMARK, "Label22", {.caption = "BOOK MARK"}),
      Frame2(form, "Frame2", {.caption = "make concordance"}),
      Frame5(form, "Frame5", {.caption = "pictures", .visible = false}),
      Frame6(Frame5, "Frame6", {.caption = "needs"}) {
  Picture6.BorderStyle = 0;  // no edge: the tools belong to the text above them
}

}  // namespace lectern::reader
