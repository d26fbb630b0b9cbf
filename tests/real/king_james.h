// The King James text, by reference: what the other data is held against.
#pragma once

#include <string>

#include "reader/reference.h"
#include "tools/make_data/sources.h"

namespace lectern {

// The words of a verse by its reference in full, "1 Samuel 3:10"; "" where there is none.
inline std::string VerseAt(const std::string& reference) {
  static const make_data::Version kText = make_data::ReadKingJames();
  const auto read = reader::ReadReference(reference);
  if (!read || !read->rest.empty()) return "";
  const auto [book, chapter, verse] = read->reference;
  const make_data::Book& chapters = kText.books[static_cast<std::size_t>(book)];
  const auto found = chapters.find(chapter);
  if (found == chapters.end() || !found->second.contains(verse)) return "";
  return found->second.at(verse);
}

}  // namespace lectern
