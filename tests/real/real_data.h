// The folder of the real texts, which no test writes to, and the King James text by reference.
#pragma once

#include <cstdlib>
#include <string>

#include "reader/reference.h"
#include "tests/kit/temporary_folder.h"
#include "tools/make_data/texts.h"

namespace lectern {

inline std::string RealData() {
  const char* const folder = std::getenv("LECTERN_REAL_DATA");
  return folder == nullptr ? "" : folder;
}

inline std::string RealFile(const std::string& name) { return ReadFile(RealData() + "/" + name); }

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
