#include "tools/make_data/markup.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "base/text/characters.h"

namespace lectern::make_data {

namespace {

// Elements whose contents are no words of the text.
bool IsLeftOut(std::string_view element) { return element == "note" || element == "title"; }

std::string_view ElementName(std::string_view tag) {
  if (tag.starts_with('/')) tag.remove_prefix(1);
  return tag.substr(0, tag.find_first_of(" \t\r\n/"));
}

std::string WithoutTags(std::string_view markup) {
  std::string words;
  int left_out = 0;  // how deep inside elements that are left out
  while (!markup.empty()) {
    const std::size_t open = std::min(markup.find('<'), markup.size());
    if (left_out == 0) words.append(markup.substr(0, open));
    markup.remove_prefix(open);
    if (markup.empty()) break;
    const std::size_t close = std::min(markup.find('>'), markup.size() - 1);
    const std::string_view tag = markup.substr(1, close - 1);
    const std::string_view element = ElementName(tag);
    if (IsLeftOut(element) && !tag.ends_with('/')) {
      left_out = std::max(left_out + (tag.starts_with('/') ? -1 : 1), 0);
    }
    // A note may be all that stands between two words; a line of verse ends without a blank.
    if (IsLeftOut(element) || element == "l" || element == "lb" || element == "div") words.push_back(' ');
    markup.remove_prefix(close + 1);
  }
  return words;
}

// The character of "#8217", "#x2019", "amp"; "" where it is none.
std::string Referenced(std::string_view reference) {
  constexpr std::array<std::pair<std::string_view, const char*>, 5> kNamed = {
      {{"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {"quot", "\""}, {"apos", "'"}}};
  for (const auto& [name, character] : kNamed) {
    if (reference == name) return character;
  }
  if (!reference.starts_with('#')) return {};
  reference.remove_prefix(1);
  const bool hexadecimal = reference.starts_with('x');
  if (hexadecimal) reference.remove_prefix(1);
  unsigned number = 0;
  const auto [end, failure] =
      std::from_chars(reference.data(), reference.data() + reference.size(), number, hexadecimal ? 16 : 10);
  std::string character;
  if (failure == std::errc{} && number > 0 && number < 0x110000) text::AppendCharacter(character, number);
  return character;
}

std::string WithCharacters(std::string_view words) {
  std::string result;
  for (std::size_t at = 0; at < words.size(); ++at) {
    const std::size_t end = words[at] == '&' ? words.find(';', at) : std::string_view::npos;
    const std::string character =
        end == std::string_view::npos ? std::string() : Referenced(words.substr(at + 1, end - at - 1));
    if (character.empty()) {
      result.push_back(words[at]);
    } else {
      result.append(character);
      at = end;
    }
  }
  return result;
}

std::string WithPlainQuotes(std::string_view words) {
  std::string result;
  for (std::size_t at = 0; at < words.size();) {
    switch (const char32_t character = text::NextCharacter(words, at)) {
      case U'‘':
      case U'’':
        result.push_back('\'');
        break;
      case U'“':
      case U'”':
        result.push_back('"');
        break;
      case U'\u00A0':
        result.push_back(' ');
        break;
      default:
        text::AppendCharacter(result, character);
    }
  }
  return result;
}

std::string WithSingleBlanks(std::string_view words) {
  std::string result;
  for (const char c : words) {
    const bool blank = c == ' ' || c == '\t' || c == '\r' || c == '\n';
    const bool closes = std::string_view(",.;:!?)").find(c) != std::string_view::npos;
    if (blank) {
      if (!result.empty() && result.back() != ' ') result.push_back(' ');
    } else {
      if (closes && !result.empty() && result.back() == ' ') result.pop_back();
      result.push_back(c);
    }
  }
  return std::string(text::TrimEnd(result));
}

}  // namespace

std::string PlainWords(std::string_view markup) {
  return WithSingleBlanks(WithPlainQuotes(WithCharacters(WithoutTags(markup))));
}

}  // namespace lectern::make_data
