// The commands that look: properties, items, menus, controls. None of them changes anything, but that naming
// a window makes it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/headless/names.h"

namespace lectern::headless {

// What a list of any kind shows, and which item is selected (-1 for none).
struct ShownItems {
  std::vector<std::string> items;
  int selected = -1;
};

// Nothing where the control has no items.
std::optional<ShownItems> ItemsOf(const forms::Control& control);

class Inspector {
 public:
  Inspector(ui::Program& the_program, std::function<void(const std::string&)> print);

  void Get(const std::vector<Word>& words);
  void Items(const std::vector<Word>& words);
  void Menu(const std::vector<Word>& words);
  void Controls(const std::vector<Word>& words);

 private:
  void PrintMenu(const forms::Container& container, int level);

  ui::Program& program_;
  std::function<void(const std::string&)> print_;
};

}  // namespace lectern::headless
