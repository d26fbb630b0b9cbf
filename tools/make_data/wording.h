// Words in capitals, written as a reader would write them. Which words are names, and how they are spelt, is
// taken from the King James text.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "tools/make_data/verses.h"

namespace lectern::make_data {

class Wording {
 public:
  explicit Wording(const Version& king_james);

  // A heading: "ABEL-BETH-MAACHAH" as "Abel-Beth-Maachah", "OLIVES, MOUNT OF" as "Olives, Mount of".
  static std::string Heading(std::string_view capitals);

  // The thing that a heading is about, as it stands in a sentence: "Mount of Olives", "Mote" for "Mote (a
  // Speck)".
  static std::string Subject(std::string_view heading);

  // Words as the beginning of a sentence. Where all are in capitals they are common words, "INSTANCES OF";
  // where some are, these are a name or another heading, "Also called ABEL-MAIM".
  std::string Sentence(std::string_view words) const;

 private:
  std::string Spelling(std::string_view capitals) const;

  std::map<std::string, std::string, std::less<>> spellings_;  // by the word in lower case
};

}  // namespace lectern::make_data
