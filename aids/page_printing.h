// The door to the page that is printed: a button among the bookmarks.
#pragma once

#include <functional>

#include "core/forms/buttons.h"
#include "core/panels.h"
#include "core/reader.h"

namespace lectern::aids {

class PagePrinting {
 public:
  // `page` makes the window of the page where there is none yet.
  PagePrinting(core::Reader& the_reader, core::Panels& panels, std::function<forms::Window&()> page);

  forms::CommandButton Command30;

 private:
  void Command30_Click();

  core::Reader& reader;
  std::function<forms::Window&()> page_;
};

}  // namespace lectern::aids
