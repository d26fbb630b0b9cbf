// The menu bar of the main window, with the entries in order. Each feature sets the handlers of its entries;
// the stories add theirs under dd1.
#pragma once

#include "forms/containers.h"
#include "forms/window.h"

namespace lectern::ui {

class Menus {
  forms::Window& form_;

 public:
  explicit Menus(forms::Window& form) : form_(form) {}

  forms::Menu ff{form_, "ff", {.caption = "&File"}};     // File
  forms::Menu xb{ff, "xb", {.caption = "&Bookmarker"}};  // opens the bookmarks
  forms::Menu ff0{ff, "ff0", {.caption = "-"}};          // line
  forms::Menu xx{ff, "xx", {.caption = "E&xit"}};        // ends the program

  // Opens panels without disabling the tool buttons.
  forms::Menu cc{form_, "cc", {.caption = "C&odex"}};
  forms::Menu cc0{cc, "cc0", {.caption = "&Notes"}};        // opens the notes
  forms::Menu cc1{cc, "cc1", {.caption = "&Concordance"}};  // opens the concordance
  forms::Menu cc2{cc, "cc2", {.caption = "&Dictionary"}};   // opens the dictionary
  forms::Menu cc3{cc, "cc3", {.caption = "&Search"}};       // opens the search
  forms::Menu cc4{cc, "cc4", {.caption = "&Trivia"}};       // opens the trivia

  forms::Menu dd1{form_, "dd1", {.caption = "Codex &Stories"}};  // filled by the stories

  forms::Menu oo{form_, "oo", {.caption = "O&ptions"}};        // Options
  forms::Menu oo11{oo, "oo11", {.caption = "Fonts/Desktop"}};  // opens fonts and colours
  // Set at every start, never stored.
  forms::Menu oo12{oo, "oo12", {.caption = "Save settings on exit", .checked = true}};

  forms::Menu webb{form_, "webb", {.caption = "Internet"}};       // web pages
  forms::Menu webb1{webb, "webb1", {.caption = "Lectern"}};       // the program's page
  forms::Menu webb2{webb, "webb2", {.caption = "My Main Page"}};  // the author's page

  forms::Menu xh{form_, "xh", {.caption = "&Help"}};         // Help
  forms::Menu aboutlt{xh, "aboutlt", {.caption = "About"}};  // what the program is
  forms::Menu xh2{xh, "xh2", {.caption = "Help"}};           // opens the help
};

}  // namespace lectern::ui
