// References as the lists hold them, taken apart again by walking their characters. Both walks pass over the
// first characters, so that the digit of a numbered book does not count, and look for the chapter's first
// digit from there on. They differ in how many they pass over and in what they take for the chapter.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lectern::search {

struct Entry {
  std::string book;             // "1 Peter"
  std::string book_with_blank;  // "1 Peter ": all that stands in front of the chapter
  std::string chapter;          // "2"
  std::string verse;            // "6"
};

// An entry of a search. Three characters are passed over; the chapter is its digits, the verse all that
// stands behind the blank that follows. Nothing where no digit is found.
std::optional<Entry> ParseEntry(std::string_view text);

// A reference of the concordance. One character is passed over; the chapter is all up to the last blank.
// Nothing where no digit is found, or no blank behind it.
std::optional<Entry> ParseConcordanceReference(std::string_view text);

}  // namespace lectern::search
