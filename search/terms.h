// What a search looks for: the texts of the two boxes in lower case, each behind one blank. The blank is the
// left border of a word; an empty box leaves the blank alone, which every verse holds.
#pragma once

#include <string>
#include <string_view>

#include "base/text/characters.h"

namespace lectern::search {

struct Terms {
  Terms(std::string_view first_box, std::string_view second_box)
      : first(" " + text::Lower(first_box)), second(" " + text::Lower(second_box)) {}

  // A word to be looked for by itself: the second term is empty, which is less than a blank.
  static Terms OneWord(std::string_view word) {
    Terms terms(word, "");
    terms.second.clear();
    return terms;
  }

  std::string first;
  std::string second;
};

}  // namespace lectern::search
