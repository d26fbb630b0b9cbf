#include "reader/reference.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <iterator>
#include <limits>

#include "base/text/characters.h"
#include "reader/canon.h"

namespace lectern::reader {

namespace {

// Usual abbreviations that are not the first letters of the name. Neither has the number of the book.
struct Abbreviation {
  std::string_view letters;
  std::string_view name;
};

// clang-format off
constexpr Abbreviation kAbbreviations[] = {
    {"gn", "genesis"}, {"lv", "leviticus"}, {"nm", "numbers"}, {"nb", "numbers"}, {"dt", "deuteronomy"},
    {"jsh", "joshua"}, {"jdgs", "judges"}, {"jdg", "judges"}, {"jg", "judges"}, {"rth", "ruth"},
    {"sm", "samuel"}, {"kgs", "kings"}, {"jb", "job"}, {"pss", "psalms"}, {"psm", "psalms"},
    {"prv", "proverbs"}, {"qoh", "ecclesiastes"}, {"ssol", "songofsolomon"}, {"sos", "songofsolomon"},
    {"sg", "songofsolomon"}, {"songofsongs", "songofsolomon"}, {"canticles", "songofsolomon"}, {"jr", "jeremiah"}, {"ezk", "ezekiel"}, {"dn", "daniel"},
    {"jl", "joel"}, {"jnh", "jonah"}, {"hb", "habakkuk"}, {"zp", "zephaniah"}, {"hg", "haggai"},
    {"zc", "zechariah"}, {"zch", "zechariah"}, {"ml", "malachi"}, {"mt", "matthew"}, {"mk", "mark"},
    {"mr", "mark"}, {"mrk", "mark"}, {"lk", "luke"}, {"jn", "john"}, {"jhn", "john"}, {"rm", "romans"},
    {"actsoftheapostles", "acts"}, {"ths", "thessalonians"}, {"php", "philippians"}, {"phi", "philippians"}, {"phil", "philippians"}, {"tm", "timothy"},
    {"phm", "philemon"}, {"phlm", "philemon"}, {"phmn", "philemon"}, {"jas", "james"}, {"jm", "james"},
    {"pt", "peter"}, {"jd", "jude"}, {"rv", "revelation"}, {"revelationofjohn", "revelation"},
    {"apocalypse", "revelation"}, {"apoc", "revelation"},
};
// clang-format on

// The form in which names are compared.
struct Name {
  int number = 0;       // 0 for none
  std::string letters;  // in lower case, without blanks and stops
};

bool IsAbbreviation(std::string_view letters, std::string_view name) {
  return std::any_of(std::begin(kAbbreviations), std::end(kAbbreviations), [&](const Abbreviation& known) {
    return known.letters == letters && known.name == name;
  });
}

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBetweenLetters(char c) { return c == ' ' || c == '.' || c == '-' || c == '\t'; }
bool IsBetweenNumbers(char c) { return c == ' ' || c == '.' || c == ':' || c == ',' || c == 'v' || c == 'V'; }

template <class Test>
void Skip(std::string_view& text, Test test) {
  text.remove_prefix(
      static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), test) - text.begin()));
}

// The number before a name, such as "1", "1st" or "I".
int TakeBookNumber(std::string_view& text) {
  if (text.size() > 1 && text[0] >= '1' && text[0] <= '3' && !IsDigit(text[1])) {
    const int number = text[0] - '0';
    text.remove_prefix(1);
    for (const std::string_view ending : {"st ", "nd ", "rd "}) {
      if (text.starts_with(ending)) text.remove_prefix(ending.size());
    }
    return number;
  }
  const std::size_t end = text.find_first_not_of("iI");
  if (end == 0 || end > 3 || end == std::string_view::npos || !IsBetweenLetters(text[end])) return 0;
  text.remove_prefix(end);
  return static_cast<int>(end);
}

// The name at the start of the text, up to the next digit.
Name TakeName(std::string_view& text) {
  Skip(text, IsBetweenLetters);
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
  std::optional<int> begins;
  int beginning = 0;
  for (std::size_t i = 0; i < kCanon.size(); ++i) {
    const Name& name = CanonNames()[i];
    if (name.number != wanted.number) continue;
    const bool is_whole = name.letters == wanted.letters;
    if (is_whole || IsAbbreviation(wanted.letters, name.letters)) return static_cast<int>(i);
    if (!name.letters.starts_with(wanted.letters)) continue;
    begins = static_cast<int>(i);
    ++beginning;
  }
  return beginning == 1 ? begins : std::nullopt;
}

// A number that does not fit becomes the largest int.
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

std::vector<int> BooksBeginningWith(std::string_view typed) {
  const Name wanted = TakeName(typed);
  std::vector<int> books;
  if (wanted.letters.empty()) return books;
  for (std::size_t i = 0; i < kCanon.size(); ++i) {
    const Name& name = CanonNames()[i];
    if (name.number == wanted.number && name.letters.starts_with(wanted.letters)) {
      books.push_back(static_cast<int>(i));
    }
  }
  return books;
}

std::optional<ReadReferenceResult> ReadReference(std::string_view text) {
  const std::optional<int> book = FindName(TakeName(text));
  if (!book) return std::nullopt;
  ReadReferenceResult result{{*book}, text};
  if (text.empty() || !IsDigit(text[0])) return result;
  const int chapter = TakeNumber(text);
  if (chapter == 0) return result;
  result.reference.chapter = chapter;
  result.rest = text;
  Skip(text, IsBetweenNumbers);
  if (text.empty() || !IsDigit(text[0])) return result;
  const int verse = TakeNumber(text);
  if (verse == 0) return result;
  result.reference.verse = verse;
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
