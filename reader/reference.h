// References to places in the text: "1 Peter 2:6". People write them in many ways; the program's lists
// separate the parts with blanks, "1 Peter 2 6".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lectern::reader {

struct Reference {
  int book = 0;     // position in the canon, from 0
  int chapter = 0;  // from 1; 0 if none is given
  int verse = 0;    // the same
};

// Finds a book by its name or a usual abbreviation ("1 Samuel", "1sam.", "I Sm") and returns its position in
// the canon. Ignores case, blanks and stops. The first letters, at least two, are enough if unambiguous.
std::optional<int> FindBook(std::string_view name);

// The books whose names begin with the name in a typed reference, in canonical order: "jo" begins Joshua,
// Job, Joel, Jonah and John.
std::vector<int> BooksBeginningWith(std::string_view typed);

struct ReadReferenceResult {
  Reference reference;
  std::string_view rest;  // of the text
};

// Reads the reference at the start of a text: "Jn 3 16", "ps119:105", "Gen.1.1 and so on". Blanks, a colon, a
// stop, a comma or a "v" separate chapter and verse; a zero is none. Returns nothing if no book is named.
std::optional<ReadReferenceResult> ReadReference(std::string_view text);

// "1 Peter 2:6", or with another separator.
std::string ReferenceText(std::string_view book, std::string_view chapter, std::string_view verse,
                          char between = ':');
// Leaves out the parts that are not given. Requires: the book is in the canon.
std::string ReferenceText(const Reference& reference);

// A typed reference, checked against the text.
struct FoundReference {
  enum class Missing { kNothing, kBook, kChapter, kVerse };

  Reference reference;
  Missing missing = Missing::kNothing;  // the first part that cannot be read or is not in the text
  int available = 0;                    // how many chapters or verses there are, where one is missing
};

}  // namespace lectern::reader
