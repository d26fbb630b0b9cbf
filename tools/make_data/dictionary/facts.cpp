#include "tools/make_data/dictionary/facts.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <sstream>

#include "base/text/characters.h"

namespace lectern::make_data {

namespace {

bool Holds(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsCapital(char c) { return c >= 'A' && c <= 'Z'; }

constexpr std::array<std::string_view, 34> kPrepositions = {
    "of",      "concerning", "in",     "to",      "by",      "for",     "from",     "with",   "against",
    "upon",    "among",      "before", "on",      "into",    "through", "over",     "under",  "unto",
    "as",      "after",      "toward", "towards", "between", "during",  "beside",   "within", "about",
    "without", "while",      "when",   "at",      "called",  "see",     "including"};

bool IsPreposition(std::string_view word) {
  return std::find(kPrepositions.begin(), kPrepositions.end(), text::Lower(word)) != kPrepositions.end();
}

std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), {}};
}

// A phrase without the brackets in it; one that stands in brackets as a whole comes out of them.
std::string WithoutBrackets(std::string phrase) {
  if (phrase.size() > 1 && phrase.front() == '(' && phrase.find(')') == phrase.size() - 1)
    return phrase.substr(1, phrase.size() - 2);
  for (std::size_t open = phrase.find(" ("); open != std::string::npos; open = phrase.find(" (")) {
    const std::size_t close = phrase.find(')', open);
    if (close == std::string::npos) break;
    phrase.erase(open, close + 1 - open);
  }
  return phrase;
}

std::string Trimmed(std::string_view text) {
  constexpr std::string_view kMargin = " .,;:=-";
  const std::size_t start = text.find_first_not_of(kMargin);
  if (start == std::string_view::npos) return {};
  return std::string(text.substr(start, text.find_last_not_of(kMargin) + 1 - start));
}

// Takes "12. " from the beginning; 0 without it.
int TakeNumber(std::string& phrase) {
  std::size_t digits = 0;
  while (digits < phrase.size() && IsDigit(phrase[digits])) ++digits;
  if (digits == 0 || phrase.compare(digits, 2, ". ") != 0) return 0;
  const int number = std::stoi(phrase.substr(0, std::min<std::size_t>(digits, 3)));
  phrase.erase(0, digits + 2);
  return number;
}

// Whether a phrase names an edition, a place in the index, or passages that were not marked.
bool SpeaksOfBooks(std::string_view phrase) {
  constexpr std::array<std::string_view, 24> kSigns = {
      " V.",    " v.",      "argin",    " above",         " below",    "following", "subtopic",  "cripture",
      "assage", "aragraph", "arable",   "nstances",       "General ",  "iscellan",  "igurative", "uthorit",
      "ymbol",  "roph",     "numbered", "identical with", "which see", " see ",     "pelled",    "ersion"};
  return std::any_of(kSigns.begin(), kSigns.end(),
                     [&](std::string_view sign) { return Holds(phrase, sign); });
}

// Whether the phrase can stand by itself.
bool IsWhole(const std::string& phrase) {
  if (phrase.find_first_of("()[]:=|&→\"") != std::string::npos || Holds(phrase, " '") ||
      SpeaksOfBooks(phrase))
    return false;
  if (std::any_of(phrase.begin(), phrase.end(), IsDigit)) return false;
  const std::vector<std::string> words = WordsOf(phrase);
  if (words.size() < 2 || IsPreposition(words.front()) || IsPreposition(words.back())) return false;
  return std::none_of(words.begin(), words.end(), [](const std::string& word) {
    return word.ends_with(',') && IsPreposition(std::string_view(word).substr(0, word.size() - 1));
  });
}

// Words for what a person or place is.
bool IsKind(std::string_view word) {
  constexpr std::array<std::string_view, 92> kKinds = {
      "son",         "sons",        "daughter", "daughters",   "father",    "mother",        "brother",
      "brothers",    "sister",      "wife",     "husband",     "grandson",  "granddaughter", "grandfather",
      "grandmother", "nephew",      "king",     "queen",       "prince",    "chief",         "captain",
      "city",        "cities",      "town",     "village",     "river",     "brook",         "stream",
      "mountain",    "mount",       "hill",     "valley",      "ravine",    "place",         "region",
      "district",    "province",    "country",  "land",        "tribe",     "family",        "people",
      "descendant",  "descendants", "ancestor", "priest",      "prophet",   "prophetess",    "levite",
      "servant",     "officer",     "eunuch",   "chamberlain", "scribe",    "musician",      "singer",
      "porter",      "gatekeeper",  "governor", "ruler",       "spy",       "apostle",       "disciple",
      "christian",   "man",         "woman",    "station",     "camp",      "camping",       "encampment",
      "name",        "member",      "island",   "seaport",     "desert",    "wilderness",    "plain",
      "plains",      "tower",       "gate",     "well",        "spring",    "pool",          "fountain",
      "idol",        "god",         "goddess",  "head",        "concubine", "judge",         "shepherd",
      "leader"};
  return std::find(kKinds.begin(), kKinds.end(), word) != kKinds.end();
}

bool TakesThe(std::string_view kind) {
  constexpr std::array<std::string_view, 6> kThe = {"father", "mother",      "husband",
                                                    "head",   "grandfather", "grandmother"};
  return std::find(kThe.begin(), kThe.end(), kind) != kThe.end();
}

bool IsArticle(std::string_view word) {
  return word == "a" || word == "an" || word == "the" || word == "one" || word == "another";
}

// Whether any of the first words is a kind, or a people's name.
bool IsOfPersonOrPlace(const std::vector<std::string>& words) {
  constexpr std::size_t kFirst = 4;
  return std::any_of(words.begin(), words.begin() + std::min(words.size(), kFirst),
                     [](const std::string& word) {
                       return IsKind(Trimmed(text::Lower(word))) ||
                              (IsCapital(word.front()) && Trimmed(word).ends_with("ite"));
                     });
}

bool IsUse(std::string_view word) {
  constexpr std::array<std::string_view, 12> kUses = {"Used",      "Made",       "Worn",       "Offered",
                                                      "Eaten",     "Sung",       "Built",      "Kept",
                                                      "Forbidden", "Instituted", "Sacrificed", "Drawn"};
  return std::find(kUses.begin(), kUses.end(), word) != kUses.end();
}

// "Kills", "Captured", but not "Promises of".
bool IsDeed(const std::vector<std::string>& words) {
  const std::string& first = words.front();
  const std::string& next = words[1];
  if (first.size() < 4 || next == "of" || next == "and" || next == "in" || next == "at")
    return first.ends_with("ed") && next != "of";
  return first.ends_with("ed") ||
         (first.ends_with('s') && !first.ends_with("ss") && !first.ends_with("us") &&
          !first.ends_with("'s")) ||
         first == "Also";
}

// A definition that begins with the kind of a person or place gets its article: "A son of Noah".
std::optional<Fact::Says> TakeAsFact(std::string& phrase) {
  const std::vector<std::string> words = WordsOf(phrase);
  const std::string first = text::Lower(words.front());
  if (IsKind(first) && words.size() > 1 && (words[1] == "of" || words[1] == "place" || words[1] == "in")) {
    if (!first.ends_with('s')) {
      phrase[0] = first.front();
      const bool is_vowel = std::string_view("aeiou").find(phrase[0]) != std::string_view::npos;
      phrase.insert(0, TakesThe(first) ? "The " : is_vowel ? "An " : "A ");
    }
    return Fact::Says::kWho;
  }
  if (IsArticle(first)) return IsOfPersonOrPlace(words) ? Fact::Says::kWho : Fact::Says::kWhat;
  constexpr std::size_t kShort = 6;
  if (words.size() < kShort && Holds(words.front(), "'s") && IsKind(Trimmed(words[1])))
    return Fact::Says::kWho;
  if (IsUse(words.front())) return Fact::Says::kUse;
  if (words.size() > 2 && IsDeed(words)) return Fact::Says::kDeed;
  return std::nullopt;
}

// Mends what the index misspells.
std::string Mended(std::string phrase) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 17> kMistakes = {
      {{"' s ", "'s "},
       {"An name", "A name"},
       {"Apointed", "Appointed"},
       {"Beseiged", "Besieged"},
       {"Caanan", "Canaan"},
       {"Capitol of", "Capital of"},
       {"Ephaimite", "Ephraimite"},
       {"Ephramite", "Ephraimite"},
       {"Phillistine", "Philistine"},
       {"Visted", "Visited"},
       {"containi", "containing"},
       {"ensalve", "enslave"},
       {"exfle", "exile"},
       {"inaugarate", "inaugurate"},
       {"perscuted", "persecuted"},
       {"retumed", "returned"},
       {"thier", "their"}}};
  for (const auto& [wrong, right] : kMistakes) {
    for (std::size_t at = phrase.find(wrong); at != std::string::npos;
         at = phrase.find(wrong, at + right.size())) {
      phrase.replace(at, wrong.size(), right);
    }
  }
  return phrase;
}

}  // namespace

std::vector<Fact> FactsOf(const Topic& topic, const Wording& wording) {
  std::vector<Fact> facts;
  bool skip_nested = false;
  int number = 0;
  for (const Item& item : topic.items) {
    std::string phrase = Mended(item.words);
    if (const int taken = TakeNumber(phrase)) {
      number = taken;
      skip_nested = false;
    }
    if (item.nested && skip_nested) continue;
    phrase = Trimmed(WithoutBrackets(std::move(phrase)));
    const bool is_head = phrase.empty() || IsInCapitals(phrase) || !item.see.empty() || !IsWhole(phrase);
    if (!item.nested) skip_nested = is_head;
    if (is_head) continue;
    phrase = wording.Sentence(phrase);
    if (const auto says = TakeAsFact(phrase)) facts.push_back({phrase, number, *says});
  }
  return facts;
}

See SeeOf(const Topic& topic) {
  constexpr std::array<std::string_view, 9> kNumbers = {"number one",   "number two",   "number three",
                                                        "number four",  "number five",  "number six",
                                                        "number seven", "number eight", "number nine"};
  for (const Item& item : topic.items) {
    if (item.see.empty()) continue;
    See see{item.see.front(), 0};
    for (std::size_t i = 0; i < kNumbers.size() && see.number == 0; ++i) {
      if (Holds(item.words, kNumbers[i])) see.number = static_cast<int>(i) + 1;
    }
    return see;
  }
  return {};
}

}  // namespace lectern::make_data
