#include "ui/quotation.h"

#include <algorithm>
#include <vector>

#include "base/text/characters.h"
#include "reader/reference.h"
#include "reader/word_blanks.h"

namespace lectern::ui {

namespace {

struct Line {
  std::string_view number;  // of a verse; "" for any other line
  std::string_view words;   // the selected ones, trimmed
  bool has_number;          // the number is selected too
};

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  return first == std::string_view::npos ? "" : text::TrimEnd(text.substr(first));
}

// The digits at the start of the line, if a blank follows.
std::string_view NumberOf(std::string_view line) {
  const std::size_t end = line.find_first_not_of("0123456789");
  return end == std::string_view::npos || line[end] != ' ' ? "" : line.substr(0, end);
}

// Positions in bytes.
std::vector<Line> SelectedLines(std::string_view text, std::size_t from, std::size_t to) {
  std::vector<Line> lines;
  for (std::size_t start = 0; start < to;) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    const std::string_view line = text.substr(start, end - start);
    const std::string_view number = NumberOf(line);
    const std::size_t first = std::max(start + number.size(), from);
    const std::size_t last = std::min(end, to);
    if (first < last && !line.starts_with("Chap")) {  // not the heading of the next chapter
      std::string_view words = text.substr(first, last - first);
      words = Trimmed(words.substr(0, words.find('\r')));
      if (!words.empty()) lines.push_back({number, words, from <= start});
    }
    start = end + 1;
  }
  return lines;
}

}  // namespace

std::string Quotation(std::string_view text, std::size_t start, std::size_t length,
                      const reader::ShownChapter& place) {
  const std::size_t from = text::ByteOf(text, start + 1);
  const std::size_t to = text::ByteOf(text, start + length + 1);
  const std::vector<std::size_t> blanks = reader::WordBlanks(text);
  const auto shown = [&blanks](std::size_t byte) {
    return byte -
           static_cast<std::size_t>(std::lower_bound(blanks.begin(), blanks.end(), byte) - blanks.begin());
  };
  const std::string shown_text = reader::WithoutWordBlanks(text);
  const std::vector<Line> lines = SelectedLines(shown_text, shown(from), shown(to));
  if (lines.empty()) return "";
  std::string quotation;
  std::string_view first_verse, last_verse;
  for (const Line& line : lines) {
    if (!quotation.empty()) quotation += '\n';
    if (lines.size() > 1 && line.has_number && !line.number.empty()) (quotation += line.number) += ' ';
    quotation += line.words;
    if (line.number.empty()) continue;
    if (first_verse.empty()) first_verse = line.number;
    last_verse = line.number;
  }
  std::string verses(first_verse);
  if (last_verse != first_verse) (verses += '-') += last_verse;
  quotation += " (";
  if (!place.chapter.empty() && !verses.empty()) {
    quotation += reader::ReferenceText(place.book, place.chapter, verses);
  } else {
    quotation += place.chapter.empty() ? place.book : place.book + " " + place.chapter;
  }
  if (!place.version.empty()) (quotation += ", ") += place.version;
  return quotation += ')';
}

std::string QuotationFrom(const forms::RichTextBox& pane, const reader::ShownChapter& place) {
  return Quotation(pane.Text(), static_cast<std::size_t>(pane.SelStart()),
                   static_cast<std::size_t>(pane.SelLength()), place);
}

}  // namespace lectern::ui
