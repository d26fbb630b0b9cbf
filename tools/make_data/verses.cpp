#include "tools/make_data/verses.h"

namespace lectern::make_data {

std::size_t Version::VerseCount() const {
  std::size_t count = 0;
  for (const Book& book : books) {
    for (const auto& [number, chapter] : book) count += chapter.size();
  }
  return count;
}

}  // namespace lectern::make_data
