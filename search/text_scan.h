// The scan of one book's file: finds the verses that hold the terms and names each as an entry, "Exodus 16
// 15".
//
// Lines are of three kinds, after lower-casing: a verse line begins with a digit and no "-" behind it; a
// chapter line with "chap"; any other is a heading, which takes the place of the book's name and begins the
// counts anew. Chapters and verses are counted, never read.
//
// The scan looks for the first term over the whole file and at lines only around what it found.
#pragma once

#include <string>
#include <string_view>

#include "base/text/text_list.h"
#include "search/line_rules.h"
#include "search/terms.h"

namespace lectern::search {

struct ScanFindings {
  text::TextList entries;
  int count = 0;          // matches; in a book scan also those without an entry, where the book has no name
  int chapter_lines = 0;  // counted to the end of the file in a book scan only
};

// `book` is the name that entries bear until a heading takes its place. `next` is the character behind the
// last candidate (see SearchLine), for a scan that goes on over several books.
ScanFindings ScanText(std::string_view bytes, const Terms& terms, std::string book, const LineRules& rules,
                      char32_t& next);
ScanFindings ScanText(std::string_view bytes, const Terms& terms, std::string book, const LineRules& rules);

}  // namespace lectern::search
