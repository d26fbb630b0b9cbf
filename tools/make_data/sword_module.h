// The texts that the distribution packs as modules, as they are marked there. `mod2imp` prints a module verse
// by verse.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reader/reference.h"

namespace lectern::make_data {

// A verse, or what stands before the first verse of a chapter (verse 0) or of a book (chapter and verse 0).
struct MarkedVerse {
  reader::Reference place;
  std::string markup;  // OSIS: <w lemma="strong:H7225">beginning</w>, <note>…</note>, …
};

// All verses of a module in the books of the canon, in the module's order. Throws an Obstacle that names
// the package if the module cannot be read.
std::vector<MarkedVerse> ReadModule(const std::string& module, const std::string& package);

// The King James text with titles and Strong's numbers, and the World English text.
std::vector<MarkedVerse> ReadKingJamesModule();
std::vector<MarkedVerse> ReadWorldEnglishModule();

// Words of a verse and the numbers of what they translate: "heaven", "H8064".
struct NumberedWords {
  std::string words;
  std::vector<std::string> numbers;
};
std::vector<NumberedWords> NumberedWordsOf(std::string_view markup);

}  // namespace lectern::make_data
