// The text that a person copies: the selected words and their place, as in "Jesus wept. (John 11:35, KJV)".
#pragma once

#include <string>
#include <string_view>

#include "forms/rich_text_box.h"
#include "reader/chapter_store.h"

namespace lectern::ui {

// Quotes the selection of a pane that shows the chapter. Several verses keep their numbers and are on
// separate lines; a single verse loses its number. The heading of the next chapter is left out. If the
// chapter is unknown, the place is only the book. Returns "" if no words are selected.
std::string QuotationFrom(const forms::RichTextBox& pane, const reader::ShownChapter& place);

// The same for `length` characters of a chapter's text from `start`, which counts from 0.
std::string Quotation(std::string_view text, std::size_t start, std::size_t length,
                      const reader::ShownChapter& place);

}  // namespace lectern::ui
