// A passage as a reader copies it: the selected words of a chapter and their place, as in
// "Jesus wept. (John 11:35, KJV)".
#pragma once

#include <string>
#include <string_view>

#include "forms/rich_text_box.h"
#include "reader/chapter_store.h"

namespace lectern::ui {

// Quotes the selection of a pane that shows the chapter. A single verse loses its number; several keep
// theirs, each on a line of its own. The heading of the next chapter is left out. Where the chapter is not
// known, only the book is named. Returns "" where no words are selected.
std::string QuotationFrom(const forms::RichTextBox& pane, const reader::ShownChapter& place);

// The same for `length` characters of a chapter's text from `start` on, counted from 0.
std::string Quotation(std::string_view text, std::size_t start, std::size_t length,
                      const reader::ShownChapter& place);

}  // namespace lectern::ui
