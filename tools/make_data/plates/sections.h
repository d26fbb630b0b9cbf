// The written tables of the plates: sections with a title in brackets, each of lines "key: value". Lines that
// begin with a blank are the body of the section, kept as they stand. A line that begins with # is a remark.
//
//   [Out of Egypt]
//   passage: Exodus 12-19; Numbers 33
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/make_data/texts.h"

namespace lectern::plates {

struct Section {
  std::string title;
  std::vector<std::pair<std::string, std::string>> entries;
  std::vector<std::string> body;

  // The first value of the key; "" where there is none.
  std::string Value(std::string_view key) const;
  std::vector<std::string> Values(std::string_view key) const;
};

std::vector<Section> ReadSections(std::string_view text);

// The parts between the separators, without the blanks around them; none of an empty text.
std::vector<std::string> Parts(std::string_view text, char separator);

// The written table of a name ("maps.txt").
std::string_view WrittenTable(std::string_view name);

// "Exodus 12-19; 33:2-5; Jude" as it is shown: with dashes between the numbers.
std::string ShownPassage(const std::string& passage);

// All verses of a passage, one behind the other. An Obstacle where it names no verses.
std::string WordsOf(const std::string& passage, const make_data::Version& text);

}  // namespace lectern::plates
