// How the dictionary, `cdxdic.dat`, is made: from a topical index, whose headings and items become words and
// definitions, and from the King James text, which gives each word a verse that uses it.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tools/make_data/texts.h"

namespace lectern::make_data {

// The topical index as in its source, read with `mod2imp`: headings in capitals, each with items of a few
// words and the passages to which they belong. From one verse to another of the same book; a verse of 0 is
// the whole chapter. The book is its position in the canon, from 0.
struct Passage {
  int book = 0;
  int first_chapter = 0, first_verse = 0;
  int last_chapter = 0, last_verse = 0;
};

struct Item {
  bool nested = false;  // below the last one that is not
  std::string words;    // without the passages; may be empty
  std::vector<Passage> passages;
  std::vector<std::string> see;  // headings it refers to
};

struct Topic {
  std::string heading;
  std::vector<Item> items;
};

// The topics of the module in their order; topics with the same heading are joined.
std::vector<Topic> ReadTopics();

// The same from the module's text as `mod2imp` prints it.
std::vector<Topic> ParseTopics(std::string_view module_text);

// Rewrites words in capitals in ordinary case. The King James text tells which words are names and how they
// are spelt.
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

 private:
  std::string Spelling(std::string_view capitals) const;

  std::map<std::string, std::string, std::less<>> spellings_;  // by the word in lower case
};

// Finds a verse that uses a topic's word.
class VerseFinder {
 public:
  struct Verse {
    int book = 0, chapter = 0, verse = 0;  // the book from 0
    const std::string* words = nullptr;
    std::string folded{};  // the words to look among
  };

  // Both must outlive it.
  VerseFinder(const std::vector<Topic>& topics, const Version& king_james);

  // The first of the topic's passages that uses its word, or else the first of all. A topic without passages
  // gets the first verse of the whole text that uses its word, or else the verse of the topic to which it
  // refers. nullptr if there is none.
  const Verse* Use(const Topic& topic) const;

 private:
  const Verse* UseAmongPassages(const Topic& topic) const;
  const Verse* UseOfReferred(const Topic& topic, int furthest) const;
  const Topic* Referred(const std::string& heading) const;

  std::map<std::string, const Topic*> topics_;
  std::vector<Verse> verses_;  // in the order of the text
};

// A topic's items as sentences: at most as many characters as the panel shows, cut at the end of an item.
std::string Definition(const Topic& topic, const Wording& wording);

// The bytes of the file: one record for each topic that has a verse.
std::string DictionaryRecords(const std::vector<Topic>& topics, const Version& king_james);

}  // namespace lectern::make_data
