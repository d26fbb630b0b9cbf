// The Hebrew, Aramaic and Greek words behind the King James text, by the numbers that it bears.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "tools/make_data/sword_module.h"

namespace lectern::make_data {

struct OriginalWord {
  std::string language;  // "Hebrew", "Aramaic" or "Greek"
  std::string letters;   // in plain Latin letters, "ekklesia"
  std::string sense;     // the first that the lexicon gives, "a calling out"; "" if it is not short and plain
  std::string name_of;   // of a name: whose it is, "a place in Palestine"; "" for any other word
};

// By number, "H7965" or "G1515", without leading zeros.
using OriginalWords = std::unordered_map<std::string, OriginalWord>;

// Adds the words of a lexicon, as `mod2imp` prints it. The letter is that of its numbers, H or G.
void ParseOriginalWords(std::string_view module_text, char letter, OriginalWords& words);

// Which numbers each word of the text bears.
class WordNumbers {
 public:
  explicit WordNumbers(const std::vector<MarkedVerse>& king_james);

  // The number that most uses of these forms of a word bear; "" if none is borne by half of them.
  std::string Main(const std::vector<std::string>& forms) const;

  // Whether the number is translated by these forms as often as not.
  bool IsMainTranslation(const std::string& number, const std::vector<std::string>& forms) const;

 private:
  using Counts = std::unordered_map<std::string, int>;
  std::unordered_map<std::string, Counts> counts_;  // by word, folded
  Counts all_;                                      // of each number
};

}  // namespace lectern::make_data
