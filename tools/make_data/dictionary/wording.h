// Puts headings and items, which are printed in capitals, into ordinary case.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "tools/make_data/texts.h"

namespace lectern::make_data {

// The King James text tells which words are names and how they are spelt.
class Wording {
 public:
  explicit Wording(const Version& king_james);

  // A heading: "ABEL-BETH-MAACHAH" as "Abel-Beth-Maachah", "OLIVES, MOUNT OF" as "Olives, Mount of".
  static std::string Heading(std::string_view capitals);

  // The thing that a heading is about, as it stands in a sentence: "Mount of Olives", "Mote" for "Mote (a
  // Speck)".
  static std::string Subject(std::string_view heading);

  // Words as the beginning of a sentence. If all are in capitals they are common words ("INSTANCES OF"); if
  // some are, these are a name or another heading ("Also called ABEL-MAIM").
  std::string Sentence(std::string_view words) const;

  // Whether the text spells the word, given in small letters without hyphens, with a capital.
  bool IsName(std::string_view word) const;

  // Whether the text ever spells the word so inside a sentence.
  bool IsAlsoName(std::string_view word) const { return capitalised_.contains(word); }

  // All words that the text spells with a capital, in small letters without hyphens, and their spelling.
  const std::map<std::string, std::string, std::less<>>& Names() const { return names_; }

 private:
  std::string Spelling(std::string_view capitals) const;

  std::map<std::string, std::string, std::less<>> spellings_;  // by the word in lower case
  std::map<std::string, std::string, std::less<>> names_;
  std::set<std::string, std::less<>> capitalised_;
};

bool IsInCapitals(std::string_view text);
void CapitaliseFirst(std::string& sentence);

// A word or a verse prepared for comparing: small letters without the hyphens of names, which the index and
// the text set differently.
std::string Folded(std::string_view words);

}  // namespace lectern::make_data
