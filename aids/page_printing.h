// The door to the page that is printed: a button among the bookmarks.
#pragma once

#include <functional>

#include "forms/buttons.h"
#include "forms/picture_box.h"
#include "reader/reader.h"

namespace lectern::aids {

class PagePrinting {
  forms::PictureBox& Picture1_;
  reader::Reader& reader_;

 public:
  // `page` makes the window of the page where there is none yet.
  PagePrinting(reader::Reader& the_reader, forms::PictureBox& Picture1, std::function<forms::Window&()> page);

  // Opens the page to print.
  forms::CommandButton Command30{Picture1_, "Command30", {.caption = "Print Page"}};

 private:
  void Command30_Click();

  std::function<forms::Window&()> page_;
};

}  // namespace lectern::aids
