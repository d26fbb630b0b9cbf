#include "core/settings.h"

namespace lectern::core {

Settings::Settings(Panels& panels)
    : Combo1(panels.Picture23, "Combo1", {.name = "Font"}),
      Combo2(panels.Picture23, "Combo2", {.name = "Size"}),
      Combo3(panels.Picture23, "Combo3", {.name = "Style"}) {}

}  // namespace lectern::core
