// The door to the print page: a button among the bookmarks.
#pragma once

#include "core/forms/buttons.h"
#include "core/panels.h"

namespace lectern::aids {

class PagePrinting {
 public:
  explicit PagePrinting(core::Panels& panels);

  forms::CommandButton Command30;
};

}  // namespace lectern::aids
