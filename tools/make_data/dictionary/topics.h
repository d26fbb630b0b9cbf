// The topical index from which the dictionary takes persons, places and subjects.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lectern::make_data {

// From one verse to another of the same book; a verse of 0 is the whole chapter. The book is its position in
// the canon, from 0.
struct Passage {
  int book = 0;
  int first_chapter = 0, first_verse = 0;
  int last_chapter = 0, last_verse = 0;
};

struct Item {
  bool nested = false;  // below the last one that is not
  std::string words;    // without the passages; may be empty
  std::vector<Passage> passages;
  std::vector<std::string> see;  // headings it refers to
};

// A heading in capitals, and items of a few words with the passages to which they belong.
struct Topic {
  std::string heading;
  std::vector<Item> items;
};

// The topics of the module's text, as `mod2imp` prints it, in their order; topics with the same heading are
// joined.
std::vector<Topic> ParseTopics(std::string_view module_text);

}  // namespace lectern::make_data
