#include "tools/make_data/dictionary/original_words.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/files/record_reader.h"
#include "base/text/characters.h"
#include "tools/make_data/dictionary/wording.h"
#include "tools/make_data/markup.h"

namespace lectern::make_data {

namespace {

bool IsSmallLetter(char c) { return c >= 'a' && c <= 'z'; }

bool Holds(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

// What stands between two marks, from a position on, which moves behind it; "" if there is nothing.
std::string_view Between(std::string_view text, std::string_view start, std::string_view end) {
  const std::size_t at = text.find(start);
  if (at == std::string_view::npos) return {};
  const std::string_view rest = text.substr(at + start.size());
  return rest.substr(0, rest.find(end));
}

// "ekklēsía" as "ekklesia", "mat'ătê'" as "matate".
std::string PlainLetters(std::string_view spelling) {
  // The lexicon has a Greek letter where it means s.
  constexpr std::array<std::pair<std::u32string_view, char>, 9> kPlain = {{{U"âáăàÁ", 'a'},
                                                                           {U"êéēḗĕèḕÉĒḖĒ", 'e'},
                                                                           {U"îíïḯìĭ", 'i'},
                                                                           {U"ôōóṓŏṑŌòṓ", 'o'},
                                                                           {U"ûúùŭ", 'u'},
                                                                           {U"ýÿŷỳ", 'y'},
                                                                           {U"ţ", 't'},
                                                                           {U"ώś", 's'},
                                                                           {U"-", '-'}}};
  std::string plain;
  const std::string words = PlainWords(spelling);
  const std::string lower = text::Lower(std::string_view(words).substr(0, words.find(' ')));
  for (std::size_t at = 0; at < lower.size();) {
    const char32_t character = text::NextCharacter(lower, at);
    if (character < 0x80 && IsSmallLetter(static_cast<char>(character)))
      plain += static_cast<char>(character);
    for (const auto& [marked, letter] : kPlain) {
      if (marked.find(character) != std::u32string_view::npos) plain += letter;
    }
  }
  return plain;
}

// The lexicon's text without tags, references to other words, brackets and what follows the colon, the list
// of translations. In one lexicon "{a} b" stands for "a, b".
std::string Explanation(std::string_view markup) {
  std::string commas;
  for (const char c : markup) {
    if (c == '}')
      commas += ',';
    else if (c != '{')
      commas += c;
  }
  std::string words = PlainWords(commas);
  words.resize(std::min({words.size(), words.find(": -"), words.find(":-")}));
  std::string outside;
  int depth = 0;
  for (const char c : words) {
    if (c == '(') ++depth;
    const bool repeats = c == ' ' && outside.ends_with(' ');
    if (depth == 0 && c != '"' && !repeats) outside += c == '\xC2' ? '\'' : c;
    if (c == ')') depth = std::max(depth - 1, 0);
  }
  return outside;
}

// Whether a part of the explanation tells where the word comes from.
bool IsDerivation(std::string_view part) {
  constexpr std::array<std::string_view, 20> kSigns = {
      "root",      "derivation", "origin",     "Chaldee",      "orresponding", "articiple", "Patrial",
      "atronymic", "eminine",    "Contracted", "eduplication", "enominative",  "lural",     "variation",
      "The same",  "ompound",    "Intensive",  "affinity",     "From",         "from H"};
  return std::any_of(kSigns.begin(), kSigns.end(),
                     [&](std::string_view sign) { return Holds(part, sign); }) ||
         std::any_of(part.begin(), part.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string Trimmed(std::string_view text) {
  constexpr std::string_view kMargin = " ,.;:";
  const std::size_t start = text.find_first_not_of(kMargin);
  if (start == std::string_view::npos) return {};
  return std::string(text.substr(start, text.find_last_not_of(kMargin) + 1 - start));
}

std::vector<std::string> Senses(const std::string& explanation) {
  std::vector<std::string> senses;
  for (std::size_t at = 0; at <= explanation.size();) {
    const std::size_t end = std::min(explanation.find(';', at), explanation.size());
    const std::string part = Trimmed(std::string_view(explanation).substr(at, end - at));
    if (!part.empty() && !IsDerivation(part)) senses.push_back(part);
    at = end + 1;
  }
  return senses;
}

// The beginning of a sense, without the labels of a lexicon; "" if what is left is not plain.
std::string PlainSense(std::string_view sense) {
  constexpr std::array<std::string_view, 24> kLabels = {
      "that is",      "i.e.",        "properly",       "literally",   "figuratively", "by ",
      "specifically", "specially",   "especially",     "concretely",  "abstractly",   "generally",
      "usually",      "causatively", "transitively",   "reflexively", "passively",    "collectively",
      "technically",  "hence",       "intransitively", "whether",     "also ",        "only "};
  constexpr std::array<std::string_view, 21> kPoor = {
      "primitive", "used",    "word",        "noun",     "particle", "etc",      "form",
      "adverb",    "pronoun", "preposition", "whatness", "perhaps",  "probably", "apparently",
      "some kind", "from ",   "always",      "sense",    "second",   "various",  "article"};
  constexpr std::array<std::string_view, 8> kDangling = {" or", " and", " a",  " the",
                                                         " of", " in",  " as", " to"};
  constexpr std::size_t kLongest = 44;
  for (const std::string_view first : {"properly ", "literally ", "strictly "}) {
    if (sense.starts_with(first)) sense.remove_prefix(first.size());
  }
  for (const std::string_view label : kLabels) {
    const std::size_t at = sense.find(label);
    if (at != std::string_view::npos && (at == 0 || sense[at - 1] == ' ')) sense = sense.substr(0, at);
  }
  const std::string plain = Trimmed(sense);
  const auto is_plain = [](char c) {
    return IsSmallLetter(c) || c == ' ' || c == '-' || c == '\'' || c == ',';
  };
  if (plain.size() < 3 || plain.size() > kLongest || !std::all_of(plain.begin(), plain.end(), is_plain))
    return {};
  if (Holds(plain, "  ") || Holds(plain, " ,") || Holds(plain, "' ")) return {};
  for (const std::string_view poor : kPoor) {
    if (Holds(plain, poor)) return {};
  }
  for (const std::string_view end : kDangling) {
    if (plain.ends_with(end)) return {};
  }
  return plain;
}

// Whose name it is: what follows the name in "Abagtha, a eunuch of Xerxes".
std::string NameOf(std::string_view sense) {
  if (sense.empty() || sense[0] < 'A' || sense[0] > 'Z') return {};
  std::size_t first = std::string_view::npos;
  for (const std::string_view article : {" a ", " an ", " the ", " perhaps ", " one "}) {
    first = std::min(first, sense.find(article));
  }
  if (first == std::string_view::npos) return {};
  std::string name_of = Trimmed(sense.substr(first));
  for (const auto& [long_word, short_word] :
       std::initializer_list<std::pair<std::string_view, std::string_view>>{
           {"Israelitesses", "Israelite women"},
           {"Israelitess", "Israelite woman"},
           {"Palestine", "the Holy Land"}}) {
    const std::size_t at = name_of.find(long_word);
    if (at != std::string::npos) name_of.replace(at, long_word.size(), short_word);
  }
  return name_of;
}

OriginalWord Read(std::string_view entry, char letter) {
  OriginalWord word;
  std::string_view explained = Between(entry, "<def>", "</def>");
  word.language = letter == 'G' ? "Greek" : Holds(explained, "(Chaldee)") ? "Aramaic" : "Hebrew";
  word.letters = PlainLetters(Between(entry, "type=\"trans\">", "</orth>"));
  const std::size_t behind_origin = explained.find("</orig>");
  if (behind_origin != std::string_view::npos) explained.remove_prefix(behind_origin);
  const std::vector<std::string> senses = Senses(Explanation(explained));
  if (senses.empty()) return word;
  word.name_of = NameOf(senses.back());
  word.sense = PlainSense(senses.front());
  return word;
}

}  // namespace

void ParseOriginalWords(std::string_view module_text, char letter, OriginalWords& words) {
  files::RecordReader lines(module_text);
  std::string number;
  while (!lines.AtEnd()) {
    std::string_view line = lines.Line();
    if (line.starts_with("$$$")) {
      line.remove_prefix(std::min(line.find_first_not_of("$0"), line.size()));
      number = letter + std::string(line);
    } else if (line.starts_with("<entryFree")) {
      words.emplace(number, Read(line, letter));
    }
  }
}

WordNumbers::WordNumbers(const std::vector<MarkedVerse>& king_james) {
  for (const MarkedVerse& verse : king_james) {
    for (const NumberedWords& numbered : NumberedWordsOf(verse.markup)) {
      if (numbered.numbers.empty()) continue;
      std::string number = numbered.numbers.back();
      const std::size_t digits = std::min(number.find_first_not_of('0', 1), number.size());
      number.erase(1, digits - 1);
      const std::string folded = Folded(numbered.words);
      ++all_[number];
      for (std::size_t at = 0; at < folded.size();) {
        std::size_t end = at;
        while (end < folded.size() && IsSmallLetter(folded[end])) ++end;
        if (end > at) ++counts_[folded.substr(at, end - at)][number];
        at = end + 1;
      }
    }
  }
}

std::string WordNumbers::Main(const std::vector<std::string>& forms) const {
  Counts all;
  int total = 0;
  for (const std::string& form : forms) {
    const auto counts = counts_.find(form);
    if (counts == counts_.end()) continue;
    for (const auto& [number, count] : counts->second) {
      all[number] += count;
      total += count;
    }
  }
  const auto main = std::max_element(all.begin(), all.end(), [](const auto& a, const auto& b) {
    return a.second < b.second || (a.second == b.second && a.first > b.first);
  });
  return main == all.end() || main->second * 2 < total ? "" : main->first;
}

bool WordNumbers::IsMainTranslation(const std::string& number, const std::vector<std::string>& forms) const {
  int uses = 0;
  for (const std::string& form : forms) {
    const auto counts = counts_.find(form);
    if (counts == counts_.end()) continue;
    const auto count = counts->second.find(number);
    if (count != counts->second.end()) uses += count->second;
  }
  const auto all = all_.find(number);
  return all != all_.end() && uses * 2 >= all->second;
}

}  // namespace lectern::make_data
