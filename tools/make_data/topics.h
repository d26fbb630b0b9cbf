// The topical index that the dictionary is made from, as its source has it: headings in capitals, each with
// items of a few words and the passages they stand for. It is read with `mod2imp`.
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

struct Topic {
  std::string heading;
  std::vector<Item> items;
};

// The topics of the module, in its order; of two with one heading the second is joined to the first.
std::vector<Topic> ReadTopics();

// The same from the module's text as `mod2imp` prints it.
std::vector<Topic> ParseTopics(std::string_view module_text);

}  // namespace lectern::make_data
