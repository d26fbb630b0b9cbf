#include "tools/make_data/dictionary/definitions.h"

#include <algorithm>

#include "base/files/record_reader.h"
#include "base/text/characters.h"
#include "tools/make_data/dictionary/wording.h"
#include "tools/make_data/markup.h"
#include "tools/make_data/texts.h"

namespace lectern::make_data {

void ParseDefinitions(std::string_view text, Definitions& definitions) {
  files::RecordReader lines(text);
  while (!lines.AtEnd()) {
    const std::string_view line = lines.Line();
    if (line.empty() || line.starts_with('#')) continue;
    const std::size_t bar = line.find('|');
    if (bar == std::string_view::npos) throw Obstacle("Not a definition: " + std::string(line));
    const std::size_t second_bar = std::min(line.find('|', bar + 1), line.size());
    const std::string word(line.substr(0, bar));
    const std::string sentences(line.substr(bar + 1, second_bar - bar - 1));
    const std::string place(line.substr(std::min(second_bar + 1, line.size())));
    if (!definitions.emplace(Folded(word), Definition{word, sentences, place}).second)
      throw Obstacle("Defined twice: " + word);
  }
}

namespace {

// As many whole sentences as fit, up to the first that refers to something.
std::string FirstSentences(std::string_view text) {
  constexpr std::size_t kLong = 200;
  std::size_t taken = 0;
  for (std::size_t stop = text.find(". "); taken < text.size(); stop = text.find(". ", stop + 1)) {
    const std::size_t end = stop == std::string_view::npos ? text.size() : stop + 1;
    const std::string_view sentence = text.substr(taken, end - taken);
    if (taken > 0 && (end > kLong || sentence.find("See ") != std::string_view::npos ||
                      sentence.find('(') != std::string_view::npos))
      break;
    taken = end;
  }
  std::string sentences(text::TrimEnd(text.substr(0, taken)));
  std::replace(sentences.begin(), sentences.end(), '"', '\'');
  return sentences;
}

}  // namespace

Definitions ParseGlossary(std::string_view markup) {
  constexpr std::string_view kWord = "<seg type=\"keyword\">";
  constexpr std::string_view kBehindWord = "</seg>";
  Definitions glossary;
  for (std::size_t at = markup.find(kWord); at != std::string_view::npos; at = markup.find(kWord, at + 1)) {
    const std::size_t start = at + kWord.size();
    const std::size_t behind = markup.find(kBehindWord, start);
    const std::size_t end = std::min(markup.find("</item>", start), markup.size());
    if (behind == std::string_view::npos || behind > end) break;
    const std::string word(markup.substr(start, behind - start));
    std::string text = FirstSentences(
        PlainWords(markup.substr(behind + kBehindWord.size(), end - behind - kBehindWord.size())));
    if (text.starts_with(' ')) text.erase(0, 1);
    if (text.starts_with(word + ": ")) text.erase(0, word.size() + 2);
    CapitaliseFirst(text);
    if (!text.ends_with('.') && !text.ends_with(".'")) text += '.';
    if (!text.starts_with("See ")) glossary.emplace(Folded(word), Definition{word, text});
  }
  return glossary;
}

}  // namespace lectern::make_data
