// In a book file a blank stands before every word, because a word is found only behind a blank: also where an
// opening mark or a dash stands before the word, as in `" Blessed`, `( for he` and `Alas— woe`. Blanks at the
// end of a verse give the scan of the whole text room for the last word. These blanks serve the search.
// Whatever shows or copies a verse leaves them out.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lectern::reader {

// The words of a verse as a book file has them. A straight quotation mark opens if a blank, an opening mark
// or a dash stands before it, or nothing.
std::string WithWordBlanks(std::string_view words);

// The bytes of a text's verse lines, in ascending order, that are such blanks.
std::vector<std::size_t> WordBlanks(std::string_view text);

// The text as it is shown and copied.
std::string WithoutWordBlanks(std::string_view text);

}  // namespace lectern::reader
