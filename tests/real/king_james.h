// The King James text, by reference: what the other data is held against.
#pragma once

#include <charconv>
#include <string>

#include "tools/make_data/sources.h"

namespace lectern {

// The words of a verse by its reference in full, "1 Samuel 3:10"; "" where there is none.
inline std::string VerseAt(const std::string& reference) {
  static const make_data::Version kText = make_data::ReadKingJames();
  const std::size_t blank = reference.rfind(' ');
  const int book = make_data::BookPosition(reference.substr(0, blank));
  int chapter = 0;
  int verse = 0;
  const char* const end = reference.data() + reference.size();
  const auto [colon, failure] = std::from_chars(reference.data() + blank + 1, end, chapter);
  if (book < 0 || failure != std::errc{} || colon == end || *colon != ':') return "";
  if (std::from_chars(colon + 1, end, verse).ptr != end) return "";
  const make_data::Book& chapters = kText.books[static_cast<std::size_t>(book)];
  const auto found = chapters.find(chapter);
  if (found == chapters.end() || !found->second.contains(verse)) return "";
  return found->second.at(verse);
}

}  // namespace lectern
