#include "search/entry.h"

#include "base/text/characters.h"

namespace lectern::search {

std::optional<Entry> ParseEntry(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789";
  constexpr std::size_t kPassedOver = 3;
  const std::size_t start = text::ByteOf(text, kPassedOver + 1);
  const std::size_t digit = text.find_first_of(kDigits, start);
  if (digit == std::string_view::npos) return std::nullopt;
  const std::size_t behind = std::min(text.find_first_not_of(kDigits, digit), text.size());
  Entry entry;
  entry.book_with_blank = text.substr(0, digit);
  entry.book = text::Left(entry.book_with_blank, text::Length(entry.book_with_blank) - 1);
  entry.chapter = text.substr(digit, behind - digit);
  if (behind < text.size()) entry.verse = text.substr(behind + 1);
  return entry;
}

}  // namespace lectern::search
