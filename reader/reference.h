// References to places in the text: "1 Peter 2:6". People write them in many ways, the program's lists with
// blanks alone, "1 Peter 2 6".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lectern::reader {

struct Reference {
  int book = 0;     // its position in the canon, from 0
  int chapter = 0;  // from 1; 0 where none is given
  int verse = 0;    // the same
};

// The book by its name or a usual abbreviation, "1 Samuel", "1sam.", "I Sm": its position in the canon. Case,
// blanks and stops do not count. Two letters or more that only one book begins with are enough.
std::optional<int> FindBook(std::string_view name);

struct ReadReferenceResult {
  Reference reference;
  std::string_view rest;  // what follows in the text
};

// The reference that a text begins with, "Jn 3 16", "ps119:105", "Gen.1.1 and so on"; nothing where no book
// is named. Between chapter and verse stand blanks, a colon, a stop or a comma.
std::optional<ReadReferenceResult> ReadReference(std::string_view text);

// "1 Peter 2:6", or with another character between chapter and verse.
std::string ReferenceText(std::string_view book, std::string_view chapter, std::string_view verse,
                          char between = ':');
// Requires: the book is one of the canon.
std::string ReferenceText(const Reference& reference);  // without the parts that are not given

// What a person typed, held against the text.
struct FoundReference {
  enum class Missing { kNothing, kBook, kChapter, kVerse };

  Reference reference;
  Missing missing = Missing::kNothing;  // the first part that is unreadable or that the text does not have
};

}  // namespace lectern::reader
