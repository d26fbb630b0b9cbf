#include <algorithm>
#include <string_view>
#include <tuple>

#include "base/text/characters.h"
#include "tools/make_data/dictionary.h"

namespace lectern::make_data {

namespace {

// A text prepared for finding words: lower case, without hyphens, which the index puts in names and the
// verses do not.
std::string Folded(std::string_view words) {
  std::string folded = text::Lower(words);
  std::erase(folded, '-');
  return folded;
}

bool IsSmallLetter(char c) { return c >= 'a' && c <= 'z'; }

enum class Fit { kBeginning, kWhole };

// Whether a folded verse has the word, its plural, or a word that begins with it.
bool Uses(const std::string& verse, const std::string& sought, Fit fit) {
  for (std::size_t at = verse.find(sought); at != std::string::npos; at = verse.find(sought, at + 1)) {
    std::size_t end = at + sought.size();
    if (end < verse.size() && verse[end] == 's') ++end;
    const bool ends = end == verse.size() || !IsSmallLetter(verse[end]);
    if ((at == 0 || !IsSmallLetter(verse[at - 1])) && (fit == Fit::kBeginning || ends)) return true;
  }
  return false;
}

std::string SubjectOf(const Topic& topic) {
  return Folded(Wording::Subject(Wording::Heading(topic.heading)));
}

bool IsBefore(const VerseFinder::Verse& a, const VerseFinder::Verse& b) {
  return std::tie(a.book, a.chapter, a.verse) < std::tie(b.book, b.chapter, b.verse);
}

VerseFinder::Verse Start(const Passage& passage) {
  return {passage.book, passage.first_chapter, passage.first_verse};
}

VerseFinder::Verse End(const Passage& passage) {
  constexpr int kBehindAll = 1000;
  return {passage.book, passage.last_chapter, passage.last_verse == 0 ? kBehindAll : passage.last_verse};
}

}  // namespace

VerseFinder::VerseFinder(const std::vector<Topic>& topics, const Version& king_james) {
  for (const Topic& topic : topics) topics_.emplace(topic.heading, &topic);
  for (std::size_t book = 0; book < king_james.books.size(); ++book) {
    for (const auto& [chapter, verses] : king_james.books[book]) {
      for (const auto& [verse, words] : verses) {
        verses_.push_back({static_cast<int>(book), chapter, verse, &words, Folded(words)});
      }
    }
  }
}

const VerseFinder::Verse* VerseFinder::Use(const Topic& topic) const {
  if (const Verse* verse = UseAmongPassages(topic)) return verse;
  const std::string sought = SubjectOf(topic);
  for (const Verse& verse : verses_) {
    if (Uses(verse.folded, sought, Fit::kWhole)) return &verse;
  }
  constexpr int kFurthest = 3;
  return UseOfReferred(topic, kFurthest);
}

const VerseFinder::Verse* VerseFinder::UseAmongPassages(const Topic& topic) const {
  std::string stem = SubjectOf(topic);
  constexpr std::size_t kShort = 4;
  const Fit fit = stem.size() > kShort ? Fit::kBeginning : Fit::kWhole;
  if (fit == Fit::kBeginning && stem.ends_with('s')) stem.pop_back();  // it may be a plural
  const Verse* first = nullptr;
  for (const Item& item : topic.items) {
    for (const Passage& passage : item.passages) {
      auto verse = std::lower_bound(verses_.begin(), verses_.end(), Start(passage), IsBefore);
      const auto end = std::upper_bound(verse, verses_.end(), End(passage), IsBefore);
      if (first == nullptr && verse != end) first = &*verse;
      for (; verse != end; ++verse) {
        if (Uses(verse->folded, stem, fit)) return &*verse;
      }
    }
  }
  return first;
}

// A reference may omit what stands in brackets in the heading: "MARINERS (SAILORS)".
const Topic* VerseFinder::Referred(const std::string& heading) const {
  const auto same = topics_.find(heading);
  if (same != topics_.end()) return same->second;
  const auto next = topics_.lower_bound(heading + " (");
  return next != topics_.end() && next->first.starts_with(heading + " (") ? next->second : nullptr;
}

const VerseFinder::Verse* VerseFinder::UseOfReferred(const Topic& topic, int furthest) const {
  for (const Item& item : topic.items) {
    for (const std::string& heading : item.see) {
      const Topic* const referred = Referred(heading);
      if (furthest == 0 || referred == nullptr) continue;
      if (const Verse* verse = UseAmongPassages(*referred)) return verse;
      if (const Verse* verse = UseOfReferred(*referred, furthest - 1)) return verse;
    }
  }
  return nullptr;
}

}  // namespace lectern::make_data
