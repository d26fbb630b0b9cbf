// From a found verse to its chapter: a click on an entry opens the chapter behind the panel and colours the
// terms in it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/containers.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"
#include "reader/reader.h"
#include "search/text_search.h"

namespace lectern::search {

// References as the lists hold them, taken apart again by walking their characters. Both walks pass over the
// first characters, so that the digit of a numbered book does not count, and look for the chapter's first
// digit from there on. They differ in how many they pass over and in what they take for the chapter.
struct Entry {
  std::string book;             // "1 Peter"
  std::string book_with_blank;  // "1 Peter ": all that stands in front of the chapter
  std::string chapter;          // "2"
  std::string verse;            // "6"
};

// An entry of a search. Three characters are passed over; the chapter is its digits, the verse all that
// stands behind the blank that follows. Nothing where no digit is found.
std::optional<Entry> ParseEntry(std::string_view text);

// A reference of the concordance. One character is passed over; the chapter is all up to the last blank.
// Nothing where no digit is found, or no blank behind it.
std::optional<Entry> ParseConcordanceReference(std::string_view text);

// Colours a term wherever it stands in a pane, inside longer words too, and leaves the selection as it found
// it.
inline constexpr forms::Colour kMarkColour = forms::kBlue;

// How many places were coloured.
int HighlightText(forms::RichTextBox& pane, std::string_view term, forms::Colour colour);

class ResultNavigation {
  forms::Frame& frmc_;
  reader::Reader& reader_;
  TextSearch& search_;

 public:
  ResultNavigation(reader::Reader& the_reader, forms::Frame& frmc, TextSearch& the_search);

  // On the concordance's panel: the chosen entry.
  forms::Label LBLCC{frmc_, "LBLCC", {.caption = "Genesis", .visible = false}};

 private:
  void lsts_Click();
};

}  // namespace lectern::search
