// Finds a verse that shows how a word is used.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "tools/make_data/dictionary/topics.h"
#include "tools/make_data/texts.h"

namespace lectern::make_data {

class VerseFinder {
 public:
  struct Verse {
    int book = 0, chapter = 0, verse = 0;  // the book from 0
    const std::string* words = nullptr;
    std::string folded{};  // the words to look among
  };

  // The text must outlive it.
  explicit VerseFinder(const Version& king_james);

  // The forms that a word takes in the text: itself, plural, possessive, and those of a verb, as far as
  // regular rules make them. In small letters; first the word itself.
  std::vector<std::string> FormsOf(std::string_view word) const;

  enum class Spelling { kSmall, kAny };

  // A verse that holds the word, given in small letters without hyphens, or several words in a row: one of
  // the topic's passages (which may be none), else the first of the text that is not long. It is spelled in
  // small letters, if that is asked for and a verse has it so. Where the text does not have the word, a verse
  // with one of its forms. nullptr if there is none.
  const Verse* Use(std::string_view word, const Topic* topic, Spelling spelling) const;

  // The verse at a place, "Psalms 3:2"; nullptr if there is none.
  const Verse* At(std::string_view place) const;

  // The word as the verse spells it.
  static std::string SpellingIn(const Verse& verse, std::string_view word);

 private:
  const Verse* UseOf(std::string_view words, const Topic* topic, Spelling spelling) const;
  bool Knows(std::string_view word) const { return places_.contains(std::string(word)); }

  std::vector<Verse> verses_;                                         // in the order of the text
  std::unordered_map<std::string, std::vector<std::size_t>> places_;  // by word, positions in `verses_`
};

}  // namespace lectern::make_data
