// A passage as a reader takes it elsewhere: the words that were selected in a chapter, and behind them where
// they stand, as in "Jesus wept. (John 11:35, KJV)".
#pragma once

#include <string>
#include <string_view>

#include "forms/rich_text_box.h"
#include "reader/chapter_store.h"

namespace lectern::ui {

// The selection of a pane that shows the chapter. A verse by itself goes without its number; several keep
// theirs and a line each. The heading of the chapter that follows is left out. Of a line whose chapter is not
// known only the book is told. "" where no words are selected.
std::string QuotationFrom(const forms::RichTextBox& pane, const reader::ShownChapter& place);

// The same for `length` characters of a chapter's text from `start` on, which counts from 0.
std::string Quotation(std::string_view text, std::size_t start, std::size_t length,
                      const reader::ShownChapter& place);

}  // namespace lectern::ui
