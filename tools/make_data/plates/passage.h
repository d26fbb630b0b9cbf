// The passage that a plate's title gives.
#pragma once

#include <string>

#include "tools/make_data/texts.h"

namespace lectern::plates {

// "Exodus 12-19; 33:2-5; Jude" as it is shown: with dashes between the numbers.
std::string ShownPassage(const std::string& passage);

// All verses of a passage, one behind the other. An Obstacle where it names no verses.
std::string WordsOf(const std::string& passage, const make_data::Version& text);

}  // namespace lectern::plates
