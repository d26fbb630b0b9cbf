// The door to the page that is printed: a button among the bookmarks.
#pragma once

#include <functional>

#include "forms/buttons.h"
#include "reader/panels.h"
#include "reader/reader.h"

namespace lectern::aids {

class PagePrinting {
  reader::Panels& panels_;
  reader::Reader& reader_;

 public:
  // `page` makes the window of the page where there is none yet.
  PagePrinting(reader::Reader& the_reader, reader::Panels& panels, std::function<forms::Window&()> page);

  // Opens the page to print.
  forms::CommandButton Command30{panels_.Picture1, "Command30", {.caption = "Print Page"}};

 private:
  void Command30_Click();

  std::function<forms::Window&()> page_;
};

}  // namespace lectern::aids
