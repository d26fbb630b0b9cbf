#include "reader/word_blanks.h"

#include <algorithm>

#include "base/text/characters.h"

namespace lectern::reader {

namespace {

constexpr std::u32string_view kBrackets = U"([{“‘";
constexpr std::u32string_view kStraightMarks = U"\"'";
constexpr std::u32string_view kDashes = U"—–";

bool IsOneOf(char32_t character, std::u32string_view set) {
  return set.find(character) != std::u32string_view::npos;
}

// What stands before a place in the words of a verse.
class Before {
 public:
  // Whether a word here needs a blank before it.
  bool NeedsBlank() const {
    return IsOneOf(last_, kBrackets) || (IsOneOf(last_, kStraightMarks) && opens_) || IsDash();
  }

  // Whether a blank here is only there because a word needs it. A dash may also have blanks on both sides.
  bool HidesBlank() const { return NeedsBlank() && !(IsDash() && last_but_one_ == U' '); }

  void Pass(char32_t character) {
    opens_ = last_ == U' ' || last_ == 0;
    is_double_hyphen_ = character == U'-' && last_ == U'-';
    if (!is_double_hyphen_) last_but_one_ = last_;
    last_ = character;
  }

 private:
  bool IsDash() const { return IsOneOf(last_, kDashes) || is_double_hyphen_; }

  char32_t last_ = 0;
  char32_t last_but_one_ = 0;      // before a dash of two hyphens, the one before both
  bool opens_ = true;              // the last character, if it is a straight mark
  bool is_double_hyphen_ = false;  // the last two characters
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Whether no word, and no mark before one, can begin here.
bool EndsSomething(std::string_view words, std::size_t at) {
  return at == words.size() || IsOneOf(text::NextCharacter(words, at), U" ,.;:!?)]}-”’—–");
}

// Where the words of a verse line begin; the line's size if it is no verse line.
std::size_t WordsOf(std::string_view line) {
  std::size_t at = 0;
  while (at < line.size() && IsDigit(line[at])) ++at;
  if (at == 0 || at == line.size() || line[at] != ' ') return line.size();
  return std::min(line.find_first_not_of(' ', at), line.size());
}

}  // namespace

std::string WithWordBlanks(std::string_view words) {
  std::string result;
  Before before;
  for (std::size_t at = 0; at < words.size();) {
    const std::size_t start = at;
    const char32_t character = text::NextCharacter(words, at);
    const bool closes_mark = IsOneOf(character, kStraightMarks) && EndsSomething(words, at);
    if (before.NeedsBlank() && !closes_mark && !EndsSomething(words, start)) {
      result.push_back(' ');
      before.Pass(U' ');
    }
    result.append(words.substr(start, at - start));
    before.Pass(character);
  }
  return result;
}

std::vector<std::size_t> WordBlanks(std::string_view text) {
  std::vector<std::size_t> blanks;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t next = std::min(text.find('\n', start), text.size()) + 1;
    std::string_view line = text.substr(start, next - 1 - start);
    if (line.ends_with('\r')) line.remove_suffix(1);
    const std::size_t end = text::TrimEnd(line).size();
    Before before;
    for (std::size_t at = WordsOf(line); at < end;) {
      const bool is_blank = line[at] == ' ' && line[at + 1] != ' ' && before.HidesBlank();
      if (is_blank) blanks.push_back(start + at);
      before.Pass(text::NextCharacter(line, at));
    }
    if (WordsOf(line) < line.size()) {
      for (std::size_t at = end; at < line.size(); ++at) blanks.push_back(start + at);
    }
    start = next;
  }
  return blanks;
}

std::string WithoutWordBlanks(std::string_view text) {
  std::string result;
  std::size_t start = 0;
  for (const std::size_t blank : WordBlanks(text)) {
    result.append(text.substr(start, blank - start));
    start = blank + 1;
  }
  return result.append(text.substr(start));
}

}  // namespace lectern::reader
