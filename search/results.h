// A click on a found verse opens its chapter and colours the terms in it.
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

// The parts of a reference in a list. Both functions below skip the first characters, so that the digit of a
// numbered book does not count, and take the next digit for the beginning of the chapter.
struct Entry {
  std::string book;             // "1 Peter"
  std::string book_with_blank;  // "1 Peter ": all before the chapter
  std::string chapter;          // "2"
  std::string verse;            // "6"
};

// An entry of a search. Skips three characters; the chapter ends after its digits, and the verse is all that
// follows the next character. Nothing if there is no digit.
std::optional<Entry> ParseEntry(std::string_view text);

// A reference of the concordance. Skips one character; the chapter ends at the last blank. Nothing if there
// is no digit, or no blank after it.
std::optional<Entry> ParseConcordanceReference(std::string_view text);

inline constexpr forms::Colour kMarkColour = forms::kBlue;

// Colours a term everywhere in a pane, also inside longer words, and keeps the selection. Returns how many
// places it coloured.
int HighlightText(forms::RichTextBox& pane, std::string_view term, forms::Colour colour);

class ResultNavigation {
  forms::Frame& frmc_;
  reader::Reader& reader_;
  TextSearch& search_;

 public:
  ResultNavigation(reader::Reader& the_reader, forms::Frame& frmc, TextSearch& the_search);

  // The chosen entry; it lies on the panel of the concordance.
  forms::Label LBLCC{frmc_, "LBLCC", {.caption = "Genesis", .visible = false}};

 private:
  void lsts_Click();
};

}  // namespace lectern::search
