#include "ui/panels.h"

namespace lectern::ui {

Panels::Panels(forms::Window& form) : form_(form) {
  Picture6.BorderStyle = 0;  // no border between the tools and the text above
}

std::vector<forms::PlacedControl*> Panels::Coloured() {
  return {&Picture23, &frmc, &frmd, &Picture17, &frmhelp, &frms, &frmscale, &FRMMARK};
}

}  // namespace lectern::ui
