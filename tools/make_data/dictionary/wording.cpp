#include "tools/make_data/dictionary/wording.h"

#include <algorithm>
#include <array>

#include "base/text/characters.h"

namespace lectern::make_data {

namespace {

bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }
bool IsLower(char c) { return c >= 'a' && c <= 'z'; }
bool IsLetter(char c) { return IsUpper(c) || IsLower(c); }
bool IsWordCharacter(char c) { return IsLetter(c) || c == '-' || c == '\''; }

// Calls `take(word, where it begins)` for each word of a text.
template <class Take>
void ForEachWord(std::string_view text, Take take) {
  for (std::size_t at = 0; at < text.size();) {
    if (!IsLetter(text[at])) {
      ++at;
      continue;
    }
    const std::size_t start = at;
    while (at < text.size() && IsWordCharacter(text[at])) ++at;
    take(text.substr(start, at - start), start);
  }
}

// Each part of a word with a capital letter: "Abel-Maim", "King's".
std::string Capitalised(std::string_view word) {
  std::string result = text::Lower(word);
  for (std::size_t i = 0; i < result.size(); ++i) {
    if (i == 0 || (result[i - 1] != '\'' && !IsLetter(result[i - 1])))
      result[i] = text::Upper(result.substr(i, 1))[0];
  }
  return result;
}

// Words that headings do not capitalise.
bool IsSmall(std::string_view word) {
  constexpr std::array<std::string_view, 15> kSmallWords = {
      "a", "an", "and", "as", "at", "by", "for", "from", "in", "of", "on", "or", "the", "to", "with"};
  return std::find(kSmallWords.begin(), kSmallWords.end(), word) != kSmallWords.end();
}

}  // namespace

bool IsInCapitals(std::string_view text) {
  return std::none_of(text.begin(), text.end(), IsLower) && std::any_of(text.begin(), text.end(), IsUpper);
}

void CapitaliseFirst(std::string& sentence) {
  const auto first = std::find_if(sentence.begin(), sentence.end(), IsLetter);
  if (first != sentence.end()) *first = text::Upper(std::string(1, *first))[0];
}

std::string Folded(std::string_view words) {
  std::string folded = text::Lower(words);
  std::erase(folded, '-');
  return folded;
}

// Only words inside a sentence count: at its beginning every word has a capital letter.
Wording::Wording(const Version& king_james) {
  std::map<std::string, std::map<std::string, int>> forms;
  for (const Book& book : king_james.books) {
    for (const auto& [number, chapter] : book) {
      for (const auto& [verse, text] : chapter) {
        ForEachWord(text, [&, &words = text](std::string_view word, std::size_t at) {
          const bool inside =
              at > 1 && words[at - 1] == ' ' && (IsLetter(words[at - 2]) || words[at - 2] == ',');
          if (inside) ++forms[text::Lower(word)][std::string(word)];
        });
      }
    }
  }
  for (const auto& [word, spellings] : forms) {
    const auto commonest = std::max_element(spellings.begin(), spellings.end(),
                                            [](const auto& a, const auto& b) { return a.second < b.second; });
    spellings_.emplace(word, commonest->first);
    const auto is_upper = [](const auto& spelling) { return IsUpper(spelling.first.front()); };
    if (std::any_of(spellings.begin(), spellings.end(), is_upper)) capitalised_.insert(Folded(word));
    if (IsUpper(commonest->first.front())) names_.emplace(Folded(word), commonest->first);
  }
}

std::string Wording::Heading(std::string_view capitals) {
  std::string heading(capitals);
  ForEachWord(capitals, [&](std::string_view word, std::size_t at) {
    const bool is_abbreviation = at + word.size() < capitals.size() && capitals[at + word.size()] == '.';
    const bool is_small = at > 0 && !is_abbreviation && IsSmall(text::Lower(word));
    if (IsInCapitals(word))
      heading.replace(at, word.size(), is_small ? text::Lower(word) : Capitalised(word));
  });
  return heading;
}

std::string Wording::Subject(std::string_view heading) {
  const std::string_view plain = heading.substr(0, heading.find(" ("));
  const std::size_t comma = plain.find(", ");
  if (comma == std::string_view::npos) return std::string(plain);
  const std::string_view head = plain.substr(0, comma);
  const std::string_view rest = plain.substr(comma + 2);
  if (rest.starts_with("of ")) return std::string(head) + " " + std::string(rest);
  if (rest.starts_with("or ") || text::Lower(rest.substr(0, 3)) == "the") return std::string(head);
  return std::string(rest) + " " + std::string(head);
}

std::string Wording::Spelling(std::string_view capitals) const {
  const std::string lower = text::Lower(capitals);
  const auto found = spellings_.find(lower);
  return found == spellings_.end() ? lower : found->second;
}

bool Wording::IsName(std::string_view word) const { return names_.contains(word); }

std::string Wording::Sentence(std::string_view words) const {
  std::string sentence(words);
  if (IsInCapitals(words)) {
    ForEachWord(words, [&](std::string_view word, std::size_t at) {
      sentence.replace(at, word.size(), Spelling(word));
    });
  } else {
    sentence = Heading(words);
  }
  CapitaliseFirst(sentence);
  return sentence;
}

}  // namespace lectern::make_data
