// The name of a found verse, "1 Peter 2 6", taken apart again by walking its characters. The first three are
// passed over, so that the digit of a numbered book does not count.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lectern::search {

struct Entry {
  std::string book;             // "1 Peter"
  std::string book_with_blank;  // "1 Peter ": all that stands in front of the chapter
  std::string chapter;          // "2"
  std::string verse;            // "6": all that stands behind the blank behind the chapter
};

// Nothing where no digit stands at the fourth character or later.
std::optional<Entry> ParseEntry(std::string_view text);

}  // namespace lectern::search
