#include "gallery/place.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "base/text/characters.h"

namespace lectern::gallery {

bool IsInBook(std::string_view place, std::string_view book) {
  // ODDITY(book-by-prefix): only the beginning is compared, so that the pictures of a book whose name begins
  // like this one's come along.
  return place.starts_with(book);
}

int ChapterOf(std::string_view place, std::size_t book_length) {
  std::string_view tail = text::Mid(place, book_length + 1);
  tail = tail.substr(0, tail.find(':'));
  const std::string_view chapter = text::Mid(tail, 2);
  int number = 0;
  const bool digits = text::StartsWithDigit(chapter);
  const auto [end, failure] = std::from_chars(chapter.data(), chapter.data() + chapter.size(), number);
  if (failure == std::errc::result_out_of_range && digits) return std::numeric_limits<int>::max();
  return digits ? number : 0;
}

std::string_view ChapterAndVerse(std::string_view place, std::size_t book_length) {
  return text::Mid(place, book_length + 2);
}

}  // namespace lectern::gallery
