// The place that a picture illustrates, as the catalogue writes it: the book's name, a blank, the chapter, a
// colon, and the verse as free text, which is shown and never read.
//
//   Genesis 2: 7
//
// A place may be anything that a hand typed. Without a colon all that follows the blank counts as the
// chapter; a chapter that does not begin with a digit is 0.
#pragma once

#include <cstddef>
#include <string_view>

namespace lectern::gallery {

// Whether the place begins with the book's name, letter by letter. A book whose name merely begins so is
// taken along.
bool IsInBook(std::string_view place, std::string_view book);

// The chapter of a place in a book whose name has `book_length` characters. A number too large to be one
// is the largest there is.
int ChapterOf(std::string_view place, std::size_t book_length);

// The place without its book: "2: 7".
std::string_view ChapterAndVerse(std::string_view place, std::size_t book_length);

}  // namespace lectern::gallery
