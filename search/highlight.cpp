#include "search/highlight.h"

#include <vector>

#include "base/text/characters.h"

namespace lectern::search {

int HighlightText(forms::RichTextBox& pane, std::string_view term, forms::Colour colour) {
  const std::size_t length = text::Length(term);
  std::vector<std::size_t> places;
  std::size_t position = 0;
  while (true) {
    const int found = pane.Find(term, static_cast<int>(position), forms::kFindNoHighlight);
    // ODDITY(first-character): a term at the very first character is not coloured, and ends the colouring
    // of all the others.
    if (found <= 0) break;
    places.push_back(static_cast<std::size_t>(found));
    position = places.back() + length;
  }
  pane.ColourPlaces(places, length, colour);
  return static_cast<int>(places.size());
}

}  // namespace lectern::search
