// The menu bar of the main window. The entries stand here in the order in which they show; each feature
// joins its handlers to its own, and the stories add theirs under dd1.
#pragma once

#include "forms/menu.h"
#include "forms/window.h"

namespace lectern::reader {

class Menus {
 public:
  explicit Menus(forms::Window& form);

  forms::Menu ff;  // File
  forms::Menu xb;
  forms::Menu ff0;  // line
  forms::Menu xx;

  forms::Menu cc;  // Codex: doors to the panels that leave the tool buttons as they are
  forms::Menu cc0;
  forms::Menu cc1;
  forms::Menu cc2;
  forms::Menu cc3;
  forms::Menu cc4;

  forms::Menu dd1;  // stories

  forms::Menu oo;  // Options
  forms::Menu oo11;
  forms::Menu oo12;  // on at every start, never stored

  forms::Menu webb;  // web pages
  forms::Menu webb1;
  forms::Menu webb2;

  forms::Menu xh;  // help
  forms::Menu aboutlt;
  forms::Menu xh2;
};

}  // namespace lectern::reader
