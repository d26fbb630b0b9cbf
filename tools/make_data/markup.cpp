#include "tools/make_data/markup.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "base/text/characters.h"

namespace lectern::make_data {

namespace {

// Elements whose contents do not belong to the text.
bool IsLeftOut(std::string_view element) {
  return element == "note" || element == "title" || element == "speaker";
}

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

// The character of "#8217", "#x2019", "amp"; "" if there is none.
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

// A converter's marks that were left in a text: "\nd ", "\+nd*".
std::string WithoutStrayMarks(std::string_view words) {
  std::string result;
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (words[at] == '\\') {
      at = std::min(words.find_first_of(" *", at), words.size());
    } else {
      result.push_back(words[at]);
    }
  }
  return result;
}

std::u32string Characters(std::string_view text) {
  std::u32string characters;
  for (std::size_t at = 0; at < text.size();) characters.push_back(text::NextCharacter(text, at));
  return characters;
}

bool IsLetter(char32_t character) {
  return text::LowerCharacter(character) != text::UpperCharacter(character);
}

// Whether the quotation mark at a place closes. The sign is also an apostrophe, inside a word and at either
// end.
bool Closes(const std::u32string& words, std::size_t at) {
  const bool in_word =
      (at > 0 && IsLetter(words[at - 1])) || (at + 1 < words.size() && IsLetter(words[at + 1]));
  const bool ends = at > 0 && words[at - 1] != U' ' && !IsLetter(words[at - 1]);
  return words[at] == U'”' || (words[at] == U'’' && (ends || !in_word));
}

// Whether a blank at that place is one too many. `result` stands before it.
bool IsSuperfluous(const std::u32string& words, std::size_t at, const std::u32string& result) {
  const char32_t before = result.empty() ? 0 : result.back();
  // A dash without a blank before it has none behind it, also at the end of a line of verse.
  if (before == U'—' && result.size() > 1 && result[result.size() - 2] != U' ') return true;
  const char32_t next = at + 1 < words.size() ? words[at + 1] : U' ';
  return before == 0 || next == U' ' || before == U'“' || before == U'‘' || Closes(words, at + 1) ||
         (before == U'”' && next == U'—') ||
         std::u32string_view(U",.;:!?)").find(next) != std::u32string_view::npos;
}

bool IsBlank(char32_t character) {
  return std::u32string_view(U" \t\r\n\u00A0").find(character) != std::u32string_view::npos;
}

// Single blanks, none before a closing mark or behind an opening one, and one between a closing quotation
// mark and a word.
std::u32string Spaced(std::u32string words) {
  std::replace_if(words.begin(), words.end(), IsBlank, U' ');
  std::u32string result;
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (words[at] == U' ' && IsSuperfluous(words, at, result)) continue;
    if (at > 0 && IsLetter(words[at]) && Closes(words, at - 1)) result.push_back(U' ');
    result.push_back(words[at]);
  }
  return result;
}

// Signs as they are typed.
std::string Typed(std::u32string_view words) {
  std::string result;
  for (const char32_t character : words) {
    switch (character) {
      case U'‘':
      case U'’':
        result.push_back('\'');
        break;
      case U'“':
      case U'”':
        result.push_back('"');
        break;
      case U'æ':
        result += "ae";
        break;
      case U'Æ':
        result += "Ae";
        break;
      default:
        text::AppendCharacter(result, character);
    }
  }
  return result;
}

// The contents of the element that begins at `open`, and what follows it.
struct Divided {
  std::string_view inside;
  std::string_view behind;
};
Divided Divide(std::string_view markup, std::size_t open, std::string_view name) {
  const std::string end_tag = "</" + std::string(name) + ">";
  const std::size_t start = std::min(markup.find('>', open), markup.size() - 1) + 1;
  const std::size_t end = std::min(markup.find(end_tag, start), markup.size());
  return {markup.substr(start, end - start), markup.substr(std::min(end + end_tag.size(), markup.size()))};
}

std::string PlainWords(std::u32string words) {
  // Paragraph signs are the converter's, Hebrew letters only repeat the names that follow them.
  std::erase_if(words, [](char32_t c) { return c == U'¶' || (c >= U'\u0590' && c <= U'\u05FF'); });
  return Typed(Spaced(std::move(words)));
}

}  // namespace

std::string PlainWords(std::string_view markup) {
  return PlainWords(Characters(WithoutStrayMarks(WithCharacters(WithoutTags(markup)))));
}

std::string_view Attribute(std::string_view tag, std::string_view name) {
  const std::string start = " " + std::string(name) + "=\"";
  const std::size_t at = tag.find(start);
  if (at == std::string_view::npos) return {};
  const std::string_view value = tag.substr(at + start.size());
  return value.substr(0, value.find('"'));
}

std::string Titles(std::string_view markup) {
  std::string titles;
  for (std::size_t open = markup.find("<title"); open != std::string_view::npos;
       open = markup.find("<title")) {
    const auto [inside, behind] = Divide(markup, open, "title");
    const std::string_view tag = markup.substr(open, markup.find('>', open) - open);
    const bool is_letter = inside.find("<foreign") != std::string_view::npos;
    if (is_letter || Attribute(tag, "canonical") == "true") titles += "[" + PlainWords(inside) + "] ";
    markup = behind;
  }
  return titles;
}

std::string VerseWords(std::string_view markup) {
  // Behind the end of a chapter stands matter between books: a glossary, an introduction.
  markup = markup.substr(0, markup.find("<chapter eID"));
  std::string words = PlainWords(markup);
  if (words.empty()) {
    const std::size_t note = markup.find("<note");
    if (note == std::string_view::npos) return "";
    std::string_view inside = Divide(markup, note, "note").inside;
    const std::size_t reference = inside.find("<reference");
    if (reference != std::string_view::npos) inside = Divide(inside, reference, "reference").behind;
    return "[" + PlainWords(inside) + "]";
  }
  return Titles(markup) + words;
}

}  // namespace lectern::make_data
