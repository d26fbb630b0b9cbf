#include "search/text_scan.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "base/files/text_encoding.h"
#include "reader/reference.h"
#include "search/term_finder.h"

namespace lectern::search {

namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::u32string Characters(std::string_view text) {
  std::u32string characters;
  for (std::size_t at = 0; at < text.size();) characters.push_back(text::NextCharacter(text, at));
  return characters;
}

constexpr char32_t LowerLetter(char c) {
  return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
}

constexpr std::size_t kMostDigits = 12;

// The first term is looked for from this character on (from 0), so that the verse's number is no match.
constexpr std::size_t kFirstPlace = 3;

// After a match the search for either term continues here (from 0), so that only a longer line can match
// again.
constexpr std::size_t kNextPlace = 1000;

struct LineFindings {
  int hits = 0;
  bool candidate = false;  // a first term was accepted, with or without the second
};

// Searches a line of any length in any script, place by place. Without a second term every candidate is a
// hit.
LineFindings SearchLine(std::u32string_view line, std::u32string_view first, std::u32string_view second,
                        const LineRules& rules, bool book_has_name, char32_t& next) {
  LineFindings findings;
  for (std::size_t i = kFirstPlace; rules.FirstLooksAt(i, line.size()); ++i) {
    if (i >= line.size() || line.substr(i, first.size()) != first) continue;
    if (i + first.size() < line.size()) next = line[i + first.size()];
    const bool counts = !rules.Rejects(next) && (book_has_name || rules.CountsNameless());
    findings.candidate = findings.candidate || counts;
    if (counts && second.empty()) ++findings.hits;
    for (std::size_t j = 0; counts && !second.empty() && rules.SecondLooksAt(j, line.size()); ++j) {
      if (line.substr(j, second.size()) != second) continue;
      ++findings.hits;
      if (j >= kNextPlace) break;
      j = kNextPlace - 1;
    }
    // Accepted or not, the first candidate decides the verse.
    if (i >= kNextPlace) break;
    i = kNextPlace - 1;
  }
  return findings;
}

class Scan {
 public:
  Scan(std::string_view bytes, const Terms& terms, std::string book, const LineRules& rules, char32_t next)
      : bytes_(bytes), terms_(terms), book_(std::move(book)), rules_(rules) {
    findings_.next = next;
  }

  ScanFindings Run() {
    std::size_t match = NextMatch(0);
    // A book scan counts all chapters of the file.
    const bool counts_on = rules_.kind == ScanKind::kBook;
    while (at_ < bytes_.size() && (counts_on || match != std::string_view::npos)) {
      const std::size_t start = at_;
      const std::string_view line = TakeLine();
      const LineKind kind = KindOf(line);
      const bool is_verse = kind == LineKind::kVerse;
      if (is_verse) {
        ++verse_;
      } else {
        CountOther(line, kind);
      }
      if (match >= at_) continue;
      if (is_verse) SearchVerse(line, match - start);
      match = NextMatch(at_);
    }
    return std::move(findings_);
  }

 private:
  // The next place of the first term, or just the next place if a term is not ASCII.
  std::size_t NextMatch(std::size_t from) const { return plain_terms_ ? first_.Find(bytes_, from) : from; }

  // The next line, without its end, which is LF or CR LF.
  std::string_view TakeLine() {
    const std::size_t end = bytes_.find('\n', at_);
    std::string_view line = bytes_.substr(at_, end - at_);
    at_ = std::min(at_ + line.size() + 1, bytes_.size());
    if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
    return line;
  }

  // A chapter line or a heading.
  void CountOther(std::string_view line, LineKind kind) {
    verse_ = 0;
    if (kind == LineKind::kChapter) {
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

  // `place` is the first place of the first term in the line, if both terms are ASCII.
  void SearchVerse(std::string_view line, std::size_t place) {
    const bool plain = plain_terms_ && line.size() <= kNextPlace && BookIsAscii();
    const LineFindings found = plain ? SearchPlainLine(line, place) : SearchAnyLine(line);
    // The name gets its capital as soon as a first term is accepted, even without the second.
    if (found.candidate && rules_.Capitalises()) Capitalise();
    findings_.count += found.hits;
    for (int i = 0; i < found.hits && !book_.empty(); ++i) AddEntry();
  }

  // Computed on first use, as most books hold no line with a rare term.
  bool BookIsAscii() {
    if (!is_ascii_) is_ascii_ = text::IsAscii(bytes_);
    return *is_ascii_;
  }

  LineFindings SearchAnyLine(std::string_view line) {
    return SearchLine(Characters(text::Lower(files::Decode(line))), Characters(terms_.first),
                      Characters(terms_.second), rules_, !book_.empty(), findings_.next);
  }

  // The rules of SearchLine for a line of ASCII in which each term can match once.
  LineFindings SearchPlainLine(std::string_view line, std::size_t place) {
    const std::size_t i = place < kFirstPlace ? first_.Find(line, kFirstPlace) : place;
    if (i > line.size() || i + terms_.first.size() > line.size() || !rules_.FirstLooksAt(i, line.size()))
      return {};
    const std::size_t behind = i + terms_.first.size();
    if (behind < line.size()) findings_.next = LowerLetter(line[behind]);
    if (rules_.Rejects(findings_.next) || (book_.empty() && !rules_.CountsNameless())) return {};
    if (terms_.second.empty()) return {1, true};
    // With an empty second box the blank in front of the first term may be the match of the second.
    if (terms_.second == " " && rules_.SecondLooksAt(i, line.size())) return {1, true};
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
  TermFinder first_{terms_.first};
  TermFinder second_{terms_.second.empty() ? terms_.first : terms_.second};
  const bool plain_terms_ = text::IsAscii(terms_.first) && text::IsAscii(terms_.second);
  std::optional<bool> is_ascii_;
  std::size_t at_ = 0;  // the beginning of the next line
  int chapter_ = 0;
  int verse_ = 0;
  bool has_capital_ = false;
  std::string entry_;             // "Exodus 16 " and space for the verse
  std::size_t entry_length_ = 0;  // of the part before the verse; 0 if the entry has to be made again
  ScanFindings findings_;
};

}  // namespace

LineKind KindOf(std::string_view line) {
  constexpr std::string_view kChapterMark = "chap";
  if (!line.empty() && IsDigit(line[0]) && !line.substr(1).starts_with('-')) return LineKind::kVerse;
  const bool is_chapter = text::EqualFolded(line.substr(0, kChapterMark.size()), kChapterMark);
  return is_chapter ? LineKind::kChapter : LineKind::kHeading;
}

ScanFindings ScanText(std::string_view bytes, const Terms& terms, std::string book, const LineRules& rules,
                      char32_t next) {
  return Scan(bytes, terms, std::move(book), rules, next).Run();
}

}  // namespace lectern::search
