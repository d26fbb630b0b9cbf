#include "reader/reference.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <limits>

#include "base/text/characters.h"
#include "reader/canon.h"

namespace lectern::reader {

namespace {

// How people shorten a book's name other than by its first letters. The number in front of a name is left
// out.
constexpr std::array<std::string_view, kCanon.size()> kAbbreviations = {
    " gn ",
    "",
    " lv ",
    " nm nb ",
    " dt ",
    " jsh ",
    " jdgs jdg jg ",
    " rth ",
    " sm ",
    " sm ",
    " kgs ",
    " kgs ",
    "",
    "",
    "",
    "",
    "",
    " jb ",
    " pss ",
    " prv ",
    " qoh ",
    " ssol sos canticles ",
    "",
    " jr ",
    "",
    " ezk ",
    " dn ",
    "",
    " jl ",
    "",
    "",
    " jnh ",
    "",
    "",
    " hb ",
    " zp ",
    " hg ",
    " zc zch ",
    " ml ",
    " mt ",
    " mk mr mrk ",
    " lk ",
    " jn jhn ",
    "",
    " rm ",
    "",
    "",
    "",
    "",
    " php phi phil ",
    "",
    "",
    "",
    " tm ",
    " tm ",
    "",
    " phm phlm phmn ",
    "",
    " jas jm ",
    " pt ",
    " pt ",
    " jn jhn ",
    " jn jhn ",
    " jn jhn ",
    " jd ",
    " rv revelationofjohn apocalypse ",
};

// A name as it is compared: its number, 0 for none, and its small letters without blanks and stops.
struct Name {
  int number = 0;
  std::string letters;
};

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBetweenLetters(char c) { return c == ' ' || c == '.' || c == '-' || c == '\t'; }
bool IsBetweenNumbers(char c) { return c == ' ' || c == '.' || c == ':' || c == ','; }

template <class Test>
void PassOver(std::string_view& text, Test test) {
  text.remove_prefix(
      static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), test) - text.begin()));
}

// "1", "I" and the like in front of a name.
int TakeBookNumber(std::string_view& text) {
  if (text.size() > 1 && text[0] >= '1' && text[0] <= '3' && !IsDigit(text[1])) {
    const int number = text[0] - '0';
    text.remove_prefix(1);
    return number;
  }
  const std::size_t end = text.find_first_not_of("iI");
  if (end == 0 || end > 3 || end == std::string_view::npos || !IsBetweenLetters(text[end])) return 0;
  text.remove_prefix(end);
  return static_cast<int>(end);
}

// The name that a text begins with, up to the first digit behind it.
Name TakeName(std::string_view& text) {
  PassOver(text, IsBetweenLetters);
  Name name{TakeBookNumber(text), {}};
  for (; !text.empty() && (IsLetter(text[0]) || IsBetweenLetters(text[0])); text.remove_prefix(1)) {
    if (IsLetter(text[0])) name.letters += text[0];
  }
  name.letters = text::Lower(name.letters);
  return name;
}

const std::array<Name, kCanon.size()>& CanonNames() {
  static const auto kNames = [] {
    std::array<Name, kCanon.size()> names;
    for (std::size_t i = 0; i < kCanon.size(); ++i) {
      std::string_view name = kCanon[i];
      names[i] = TakeName(name);
    }
    return names;
  }();
  return kNames;
}

std::optional<int> FindName(const Name& wanted) {
  constexpr std::size_t kShortest = 2;
  if (wanted.letters.size() < kShortest) return std::nullopt;
  const std::string abbreviation = " " + wanted.letters + " ";
  std::optional<int> begins;
  int beginning = 0;
  for (std::size_t i = 0; i < kCanon.size(); ++i) {
    const Name& name = CanonNames()[i];
    if (name.number != wanted.number) continue;
    const bool is_whole = name.letters == wanted.letters;
    if (is_whole || kAbbreviations[i].find(abbreviation) != std::string_view::npos)
      return static_cast<int>(i);
    if (!name.letters.starts_with(wanted.letters)) continue;
    begins = static_cast<int>(i);
    ++beginning;
  }
  return beginning == 1 ? begins : std::nullopt;
}

// A number too large to be one is the largest there is.
int TakeNumber(std::string_view& text) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [behind, failure] = std::from_chars(text.data(), end, number);
  text = {behind, static_cast<std::size_t>(end - behind)};
  return failure == std::errc::result_out_of_range ? std::numeric_limits<int>::max() : number;
}

}  // namespace

std::optional<int> FindBook(std::string_view name) {
  const Name taken = TakeName(name);
  return name.empty() ? FindName(taken) : std::nullopt;
}

std::optional<ReadReferenceResult> ReadReference(std::string_view text) {
  const std::optional<int> book = FindName(TakeName(text));
  if (!book) return std::nullopt;
  ReadReferenceResult result{{*book}, text};
  if (text.empty() || !IsDigit(text[0])) return result;
  result.reference.chapter = TakeNumber(text);
  result.rest = text;
  PassOver(text, IsBetweenNumbers);
  if (text.empty() || !IsDigit(text[0])) return result;
  result.reference.verse = TakeNumber(text);
  result.rest = text;
  return result;
}

std::string ReferenceText(std::string_view book, std::string_view chapter, std::string_view verse,
                          char between) {
  std::string text(book);
  return text.append(1, ' ').append(chapter).append(1, between).append(verse);
}

std::string ReferenceText(const Reference& reference) {
  assert(reference.book >= 0 && reference.book < static_cast<int>(kCanon.size()));
  const std::string book(kCanon[static_cast<std::size_t>(reference.book)]);
  if (reference.chapter == 0) return book;
  const std::string chapter = std::to_string(reference.chapter);
  if (reference.verse == 0) return book + " " + chapter;
  return ReferenceText(book, chapter, std::to_string(reference.verse));
}

}  // namespace lectern::reader
