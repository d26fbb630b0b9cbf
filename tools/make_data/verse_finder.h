// Finds for a topic of the index a verse that uses its word.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tools/make_data/topics.h"
#include "tools/make_data/verses.h"

namespace lectern::make_data {

class VerseFinder {
 public:
  struct Verse {
    int book = 0, chapter = 0, verse = 0;  // the book from 0
    const std::string* words = nullptr;
    std::string folded{};  // the words to look among
  };

  // Both have to outlive it.
  VerseFinder(const std::vector<Topic>& topics, const Version& king_james);

  // The first verse among the topic's passages that uses its word; else the first of all. A topic without
  // passages takes the first verse of the whole text that uses its word; else what the topic it refers to
  // has. nullptr where there is none.
  const Verse* Use(const Topic& topic) const;

 private:
  const Verse* UseAmongPassages(const Topic& topic) const;
  const Verse* UseOfReferred(const Topic& topic, int furthest) const;
  const Topic* Referred(const std::string& heading) const;

  std::map<std::string, const Topic*> topics_;
  std::vector<Verse> verses_;  // in the order of the text
};

}  // namespace lectern::make_data
