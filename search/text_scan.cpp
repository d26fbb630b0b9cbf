#include "search/text_scan.h"

#include <charconv>
#include <cstring>
#include <optional>
#include <utility>

#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "reader/reference.h"
#include "search/term_finder.h"

namespace lectern::search {

namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsVerseLine(std::string_view line) {
  return !line.empty() && IsDigit(line[0]) && (line.size() < 2 || line[1] != '-');
}

bool IsChapterLine(std::string_view line) {
  constexpr std::string_view kMark = "chap";
  if (line.size() < kMark.size()) return false;
  for (std::size_t i = 0; i < kMark.size(); ++i) {
    if ((line[i] | 0x20) != kMark[i]) return false;
  }
  return true;
}

std::u32string Characters(std::string_view text) {
  std::u32string characters;
  for (std::size_t at = 0; at < text.size();) characters.push_back(text::NextCharacter(text, at));
  return characters;
}

constexpr char32_t LowerLetter(char c) {
  return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
}

constexpr std::size_t kMostDigits = 12;

class Scan {
 public:
  Scan(std::string_view bytes, const Terms& terms, std::string book, const LineRules& rules, char32_t& next)
      : bytes_(bytes),
        terms_(terms),
        book_(std::move(book)),
        rules_(rules),
        next_(next),
        first_(terms.first),
        second_(terms.second.empty() ? terms.first : terms.second),
        plain_terms_(text::IsAscii(terms.first) && text::IsAscii(terms.second)),
        one_term_(terms.second == " "),
        no_second_(terms.second.empty()) {}

  ScanFindings Run() {
    std::size_t match = NextMatch(0);
    // A book scan counts the chapters to the end of the file, whatever it finds.
    const bool counts_on = rules_.kind == ScanKind::kBook;
    while (at_ < bytes_.size() && (counts_on || match != std::string_view::npos)) {
      const std::size_t start = at_;
      const std::string_view line = TakeLine();
      const bool is_verse = IsVerseLine(line);
      if (is_verse) {
        ++verse_;
      } else {
        CountOther(line);
      }
      if (match >= at_) continue;
      if (is_verse) SearchVerse(line, match - start);
      match = NextMatch(at_);
    }
    return std::move(findings_);
  }

 private:
  // Where the first term stands next, or the next place at all where the bytes alone cannot tell.
  std::size_t NextMatch(std::size_t from) const { return plain_terms_ ? first_.Find(bytes_, from) : from; }

  // The next line, without its end, which is LF or CR LF.
  std::string_view TakeLine() {
    const char* const start = bytes_.data() + at_;
    const std::size_t left = bytes_.size() - at_;
    const void* const end = std::memchr(start, '\n', left);
    std::size_t length =
        end == nullptr ? left : static_cast<std::size_t>(static_cast<const char*>(end) - start);
    at_ += end == nullptr ? left : length + 1;
    if (end != nullptr && length > 0 && start[length - 1] == '\r') --length;
    return {start, length};
  }

  // A chapter line or a heading.
  void CountOther(std::string_view line) {
    verse_ = 0;
    if (IsChapterLine(line)) {
      ++chapter_;
      ++findings_.chapter_lines;
    } else {
      chapter_ = 0;
      book_ = text::Lower(files::Decode(line));
      has_capital_ = false;
      if (rules_.CutsSong() && book_.starts_with("song")) book_ = "song";
    }
    entry_length_ = 0;
  }

  // `place` is where the first term stands in the line for the first time, where that is known.
  void SearchVerse(std::string_view line, std::size_t place) {
    const bool plain = plain_terms_ && line.size() <= kNextPlace && BookIsAscii();
    const LineFindings found = plain ? SearchPlainLine(line, place) : SearchAnyLine(line);
    // The name gets its capital with the first term that is accepted, be the second there or not.
    if (found.candidate && rules_.Capitalises()) Capitalise();
    findings_.count += found.hits;
    for (int i = 0; i < found.hits && !book_.empty(); ++i) AddEntry();
  }

  // Found out when the first line asks: most books of a rare term have none that does.
  bool BookIsAscii() {
    if (!is_ascii_) is_ascii_ = text::IsAscii(bytes_);
    return *is_ascii_;
  }

  LineFindings SearchAnyLine(std::string_view line) {
    return SearchLine(Characters(text::Lower(files::Decode(line))), Characters(terms_.first),
                      Characters(terms_.second), rules_, !book_.empty(), next_);
  }

  // The rules of SearchLine for a line of ASCII in which each term can match once.
  LineFindings SearchPlainLine(std::string_view line, std::size_t place) {
    const std::size_t i = place < kFirstPlace ? first_.Find(line, kFirstPlace) : place;
    if (i > line.size() || i + terms_.first.size() > line.size() || !rules_.FirstLooksAt(i, line.size()))
      return {};
    const std::size_t behind = i + terms_.first.size();
    if (behind < line.size()) next_ = LowerLetter(line[behind]);
    if (rules_.Rejects(next_) || (book_.empty() && !rules_.CountsNameless())) return {};
    if (no_second_) return {1, true};
    // The blank in front of the first term may be the one that stands for a second.
    if (one_term_ && rules_.SecondLooksAt(i, line.size())) return {1, true};
    const std::size_t j = second_.Find(line, 0);
    return {j != std::string_view::npos && rules_.SecondLooksAt(j, line.size()) ? 1 : 0, true};
  }

  void Capitalise() {
    if (book_.empty() || std::exchange(has_capital_, true)) return;
    std::size_t behind = 0;
    const char32_t first = text::NextCharacter(book_, behind);
    std::string capital;
    text::AppendCharacter(capital, text::UpperCharacter(first));
    book_.replace(0, behind, capital);
    entry_length_ = 0;
  }

  void AddEntry() {
    if (entry_length_ == 0) {
      entry_ = reader::ReferenceText(book_, std::to_string(chapter_), "", ' ');
      entry_length_ = entry_.size();
      entry_.resize(entry_length_ + kMostDigits);
    }
    char* const digits = entry_.data() + entry_length_;
    const char* const end = std::to_chars(digits, digits + kMostDigits, verse_).ptr;
    findings_.entries.Add({entry_.data(), static_cast<std::size_t>(end - entry_.data())});
  }

  std::string_view bytes_;
  const Terms& terms_;
  std::string book_;
  const LineRules& rules_;
  char32_t& next_;
  TermFinder first_, second_;
  bool plain_terms_;  // of ASCII alone, so that they can be looked for in bytes
  bool one_term_;     // the second box is empty
  bool no_second_;    // there is no second box

  std::optional<bool> is_ascii_;
  std::size_t at_ = 0;  // where the next line begins
  int chapter_ = 0;
  int verse_ = 0;
  bool has_capital_ = false;
  std::string entry_;             // "Exodus 16 " and room for the verse
  std::size_t entry_length_ = 0;  // of the part in front of the verse; 0 where it has to be made anew
  ScanFindings findings_;
};

}  // namespace

ScanFindings ScanText(std::string_view bytes, const Terms& terms, std::string book, const LineRules& rules,
                      char32_t& next) {
  return Scan(bytes, terms, std::move(book), rules, next).Run();
}

ScanFindings ScanText(std::string_view bytes, const Terms& terms, std::string book, const LineRules& rules) {
  char32_t next = 0;
  return ScanText(bytes, terms, std::move(book), rules, next);
}

LineFindings SearchLine(std::u32string_view line, std::u32string_view first, std::u32string_view second,
                        const LineRules& rules, bool book_has_name, char32_t& next) {
  LineFindings findings;
  std::size_t i = kFirstPlace;
  while (rules.FirstLooksAt(i, line.size())) {
    if (i >= line.size() || line.substr(i, first.size()) != first) {
      ++i;
      continue;
    }
    if (i + first.size() < line.size()) next = line[i + first.size()];
    const bool counts = !rules.Rejects(next) && (book_has_name || rules.CountsNameless());
    findings.candidate = findings.candidate || counts;
    if (counts && second.empty()) ++findings.hits;
    std::size_t j = 0;
    while (counts && !second.empty() && rules.SecondLooksAt(j, line.size())) {
      if (line.substr(j, second.size()) != second) {
        ++j;
        continue;
      }
      ++findings.hits;
      if (j >= kNextPlace) break;
      j = kNextPlace;
    }
    // Rejected or not, the first candidate decides the verse.
    if (i >= kNextPlace) break;
    i = kNextPlace;
  }
  return findings;
}

}  // namespace lectern::search
