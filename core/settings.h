// The panel of fonts and colours, and the file `codex.cfg` that keeps the font.
#pragma once

#include "core/forms/combo_box.h"
#include "core/panels.h"

namespace lectern::core {

class Settings {
 public:
  explicit Settings(Panels& panels);

  forms::ComboBox Combo1;  // font
  forms::ComboBox Combo2;  // size
  forms::ComboBox Combo3;  // style
};

}  // namespace lectern::core
