#include "search/results.h"

#include <algorithm>
#include <vector>

#include "base/text/characters.h"

namespace lectern::search {

ResultNavigation::ResultNavigation(reader::Reader& the_reader, forms::Frame& frmc, TextSearch& the_search)
    : frmc_(frmc), reader_(the_reader), search_(the_search) {
  search_.lsts.Click = [this] { lsts_Click(); };
}

void ResultNavigation::lsts_Click() {
  const int selected = search_.lsts.SelectedIndex();
  if (selected >= 0) LBLCC.Caption = search_.lsts.List(selected);
  reader_.List1.Clear();
  const std::optional<Entry> entry = ParseEntry(LBLCC.Caption());
  if (!entry) return;
  reader_.ShowFoundPassage(entry->book_with_blank, entry->chapter);
  search_.lsts.MousePointer = forms::kPointerDefault;
  HighlightText(reader_.rtxt, search_.txts.Text(), kMarkColour);
  if (search_.txts2.Text != "") HighlightText(reader_.rtxt, search_.txts2.Text(), kMarkColour);
}

namespace {

constexpr std::string_view kDigits = "0123456789";

// Divides a reference at the chapter's first digit; `chapter` still holds the verse.
std::optional<Entry> SplitAtChapter(std::string_view text, std::size_t skipped) {
  const std::size_t digit = text.find_first_of(kDigits, text::ByteOf(text, skipped + 1));
  if (digit == std::string_view::npos) return std::nullopt;
  const std::string_view before = text.substr(0, digit);
  return Entry{std::string(text::Left(before, text::Length(before) - 1)), std::string(before),
               std::string(text.substr(digit)), ""};
}

// Divides the chapter at the blank in front of the verse.
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

int HighlightText(forms::RichTextBox& pane, std::string_view term, forms::Colour colour) {
  const std::size_t length = text::Length(term);
  std::vector<std::size_t> places;
  std::size_t position = 0;
  while (true) {
    const int found = pane.Find(term, static_cast<int>(position), forms::kFindNoHighlight);
    // ODDITY(first-character): a term at the first character is not coloured and ends the colouring.
    if (found <= 0) break;
    places.push_back(static_cast<std::size_t>(found));
    position = places.back() + length;
  }
  pane.ColourPlaces(places, length, colour);
  return static_cast<int>(places.size());
}

}  // namespace lectern::search
