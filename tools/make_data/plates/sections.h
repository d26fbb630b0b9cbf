// The tables of the plates: sections with a title in brackets and lines "key: value". Lines that begin with a
// blank are the body of the section and are kept unchanged. A line that begins with # is a comment.
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

  // The first value of the key; "" if there is none.
  std::string Value(std::string_view key) const;
  std::vector<std::string> Values(std::string_view key) const;
};

std::vector<Section> ReadSections(std::string_view text);

// The parts between the separators, without the blanks around them. An empty text has no parts.
std::vector<std::string> Parts(std::string_view text, char separator);

// The text of a table, such as "maps.txt".
std::string_view WrittenTable(std::string_view name);

// A passage as it is shown, "Exodus 12-19; 33:2-5; Jude" with dashes between the numbers.
std::string ShownPassage(const std::string& passage);

// The words of all verses of a passage. Throws an Obstacle if the passage has no verses.
std::string WordsOf(const std::string& passage, const make_data::Version& text);

}  // namespace lectern::plates
