// The panels of the main window, which contain the features. Those that open over the text are hidden at the
// start. The frames beyond the right edge hold storage and the maintenance tools.
#pragma once

#include <vector>

#include "forms/containers.h"
#include "forms/picture_box.h"
#include "forms/text_controls.h"
#include "forms/window.h"

namespace lectern::ui {

class Panels {
  forms::Window& form_;

 public:
  explicit Panels(forms::Window& form) : form_(form) {
    Picture6.BorderStyle = 0;  // no border between the tools and the text above
  }

  // The panels that take a colour chosen in the settings, in this order.
  std::vector<forms::PlacedControl*> Coloured() {
    return {&Picture23, &frmc, &frmd, &Picture17, &frmhelp, &frms, &frmscale, &FRMMARK};
  }

  forms::PictureBox Picture6{form_, "Picture6"};  // the row of tool buttons
  forms::PictureBox Picture5{form_, "Picture5"};  // the strip of pictures

  // The viewer: one picture at full size.
  forms::PictureBox picp{form_, "picp", {.visible = false, .name = "Picture"}};
  forms::Frame frms{form_, "frms", {.visible = false, .name = "Search"}};                  // text search
  forms::Frame frmc{form_, "frmc", {.visible = false, .name = "Concordance"}};             // concordance
  forms::PictureBox frmhelp{form_, "frmhelp", {.visible = false, .name = "Help"}};         // help
  forms::PictureBox Picture17{form_, "Picture17", {.visible = false, .name = "Trivia"}};   // trivia
  forms::PictureBox Picture1{form_, "Picture1", {.visible = false, .name = "Bookmarks"}};  // bookmarks
  // In the bookmarks panel: steps through the chapters.
  forms::PictureBox Picture2{
      Picture1, "Picture2", {.name = "Sweep the pointer to step through the chapters"}};
  forms::PictureBox Picture23{form_, "Picture23", {.visible = false, .name = "Fonts and desktop"}};  // fonts
  forms::Frame frmd{form_, "frmd", {.visible = false, .name = "Dictionary"}};                // dictionary
  forms::PictureBox Picture4{form_, "Picture4", {.visible = false, .name = "Second text"}};  // second pane

  // In the search panel: progress through the whole text.
  forms::Frame frmscale{frms, "frmscale", {.visible = false, .name = "Progress"}};

  forms::Frame Frame1{form_, "Frame1"};     // storage: the folders
  forms::Frame FRMMARK{Frame1, "FRMMARK"};  // storage: takes the colour of the panels
  forms::Label Label22{FRMMARK, "Label22", {.caption = "BOOK MARK"}};     // storage: heading of FRMMARK
  forms::Frame Frame2{form_, "Frame2", {.caption = "make concordance"}};  // tools: the concordance builder
  // Tools: maintenance of the pictures.
  forms::Frame Frame5{form_, "Frame5", {.caption = "pictures", .visible = false}};
  forms::Frame Frame6{Frame5, "Frame6", {.caption = "needs"}};  // storage in Frame5: the picture lists
};

}  // namespace lectern::ui
