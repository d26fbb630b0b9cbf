#include "search/entry.h"

#include <algorithm>

#include "base/text/characters.h"

namespace lectern::search {

namespace {

constexpr std::string_view kDigits = "0123456789";

// The entry with its book, and in `chapter` all that begins with its first digit.
std::optional<Entry> SplitAtChapter(std::string_view text, std::size_t passed_over) {
  const std::size_t digit = text.find_first_of(kDigits, text::ByteOf(text, passed_over + 1));
  if (digit == std::string_view::npos) return std::nullopt;
  const std::string_view before = text.substr(0, digit);
  return Entry{std::string(text::Left(before, text::Length(before) - 1)), std::string(before),
               std::string(text.substr(digit)), ""};
}

// Cuts the chapter where the blank in front of the verse stands.
void CutVerse(Entry& entry, std::size_t blank) {
  if (blank < entry.chapter.size()) entry.verse = entry.chapter.substr(blank + 1);
  entry.chapter.resize(std::min(blank, entry.chapter.size()));
}

}  // namespace

std::optional<Entry> ParseEntry(std::string_view text) {
  std::optional<Entry> entry = SplitAtChapter(text, 3);
  if (entry) CutVerse(*entry, entry->chapter.find_first_not_of(kDigits));
  return entry;
}

std::optional<Entry> ParseConcordanceReference(std::string_view text) {
  std::optional<Entry> entry = SplitAtChapter(text, 1);
  const std::size_t blank = entry ? entry->chapter.rfind(' ') : std::string::npos;
  if (blank == std::string::npos) return std::nullopt;
  CutVerse(*entry, blank);
  return entry;
}

}  // namespace lectern::search
