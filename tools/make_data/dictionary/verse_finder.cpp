#include "tools/make_data/dictionary/verse_finder.h"

#include <algorithm>
#include <tuple>

#include "reader/reference.h"
#include "tools/make_data/dictionary/wording.h"

namespace lectern::make_data {

namespace {

bool IsSmallLetter(char c) { return c >= 'a' && c <= 'z'; }

// Where the words stand in a folded verse, not inside longer words. A possessive is the same word.
std::size_t FindWords(std::string_view folded, std::string_view words) {
  for (std::size_t at = folded.find(words); at != std::string_view::npos; at = folded.find(words, at + 1)) {
    const std::size_t end = at + words.size();
    const bool begins = at == 0 || !IsSmallLetter(folded[at - 1]);
    if (begins && (end == folded.size() || !IsSmallLetter(folded[end]))) return at;
  }
  return std::string_view::npos;
}

// Calls `take(word)` for each word of a folded text.
template <class Take>
void ForEachFoldedWord(std::string_view folded, Take take) {
  for (std::size_t at = 0; at < folded.size();) {
    if (!IsSmallLetter(folded[at])) {
      ++at;
      continue;
    }
    const std::size_t start = at;
    while (at < folded.size() && IsSmallLetter(folded[at])) ++at;
    take(folded.substr(start, at - start));
  }
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

VerseFinder::VerseFinder(const Version& king_james) {
  for (std::size_t book = 0; book < king_james.books.size(); ++book) {
    for (const auto& [chapter, verses] : king_james.books[book]) {
      for (const auto& [verse, words] : verses) {
        verses_.push_back({static_cast<int>(book), chapter, verse, &words, Folded(words)});
        ForEachFoldedWord(verses_.back().folded, [&](std::string_view word) {
          std::vector<std::size_t>& places = places_[std::string(word)];
          if (places.empty() || places.back() != verses_.size() - 1) places.push_back(verses_.size() - 1);
        });
      }
    }
  }
}

std::vector<std::string> VerseFinder::FormsOf(std::string_view word) const {
  const std::string base(word);
  const std::string cut = base.substr(0, base.size() - 1);
  std::vector<std::string> forms = {base};
  const auto add = [&](const std::string& stem, std::initializer_list<const char*> endings) {
    for (const char* ending : endings) {
      if (Knows(stem + ending)) forms.push_back(stem + ending);
    }
  };
  add(base, {"s", "es", "ed", "d", "ing", "eth", "th", "est", "edst", "st"});
  if (base.ends_with('y')) add(cut, {"ies", "ied", "ieth", "iest"});
  if (base.ends_with('e')) add(cut, {"ing"});
  if (!IsSmallLetter(base.back())) return forms;
  add(base + base.back(), {"ed", "ing", "eth", "est"});
  return forms;
}

const VerseFinder::Verse* VerseFinder::Use(std::string_view word, const Topic* topic,
                                           Spelling spelling) const {
  const std::vector<std::string> forms = FormsOf(word);
  for (const std::string& form : forms) {
    if (const Verse* verse = UseOf(form, topic, spelling)) return verse;
  }
  return spelling == Spelling::kAny ? nullptr : Use(word, topic, Spelling::kAny);
}

const VerseFinder::Verse* VerseFinder::At(std::string_view place) const {
  const auto read = reader::ReadReference(place);
  if (!read) return nullptr;
  const Verse wanted{read->reference.book, read->reference.chapter, read->reference.verse};
  const auto verse = std::lower_bound(verses_.begin(), verses_.end(), wanted, IsBefore);
  return verse == verses_.end() || IsBefore(wanted, *verse) ? nullptr : &*verse;
}

std::string VerseFinder::SpellingIn(const Verse& verse, std::string_view word) {
  std::size_t at = FindWords(verse.folded, word);
  if (at == std::string::npos) return std::string(word);
  const auto is_hyphen = [&](std::size_t i) { return (*verse.words)[i] == '-'; };
  // The folded verse lacks the hyphens of the words before it.
  std::size_t start = 0;
  for (;; ++start) {
    if (is_hyphen(start)) continue;
    if (at-- == 0) break;
  }
  std::size_t end = start;
  for (std::size_t left = word.size(); left > 0; ++end) {
    if (!is_hyphen(end)) --left;
  }
  return verse.words->substr(start, end - start);
}

const VerseFinder::Verse* VerseFinder::UseOf(std::string_view words, const Topic* topic,
                                             Spelling spelling) const {
  const auto uses = [&](const Verse& verse) {
    return FindWords(verse.folded, words) != std::string::npos &&
           (spelling == Spelling::kAny || FindWords(*verse.words, words) != std::string::npos);
  };
  if (topic != nullptr) {
    for (const Item& item : topic->items) {
      for (const Passage& passage : item.passages) {
        auto verse = std::lower_bound(verses_.begin(), verses_.end(), Start(passage), IsBefore);
        const auto end = std::upper_bound(verse, verses_.end(), End(passage), IsBefore);
        for (; verse != end; ++verse) {
          if (uses(*verse)) return &*verse;
        }
      }
    }
  }
  constexpr std::size_t kLong = 160;
  const auto places = places_.find(std::string(words.substr(0, words.find(' '))));
  if (places == places_.end()) return nullptr;
  const Verse* first = nullptr;
  for (const std::size_t place : places->second) {
    const Verse& verse = verses_[place];
    if (!uses(verse)) continue;
    if (verse.words->size() <= kLong) return &verse;
    if (first == nullptr) first = &verse;
  }
  return first;
}

}  // namespace lectern::make_data
