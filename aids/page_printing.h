// The door to the page that is printed: a button among the bookmarks.
#pragma once

#include <functional>

#include "forms/buttons.h"
#include "reader/panels.h"
#include "reader/reader.h"

namespace lectern::aids {

class PagePrinting {
 public:
  // `page` makes the window of the page where there is none yet.
  PagePrinting(reader::Reader& the_reader, reader::Panels& panels, std::function<forms::Window&()> page);

  forms::CommandButton Command30;

 private:
  void Command30_Click();

  reader::Reader& reader_;
  std::function<forms::Window&()> page_;
};

}  // namespace lectern::aids
