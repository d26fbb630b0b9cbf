#include "tools/make_data/texts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "base/files/record_reader.h"
#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "reader/canon.h"
#include "reader/reference.h"

namespace lectern::make_data {

std::size_t Version::VerseCount() const {
  std::size_t count = 0;
  for (const Book& book : books) {
    for (const auto& [number, chapter] : book) count += chapter.size();
  }
  return count;
}

namespace {

// Elements whose contents do not belong to the text.
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

namespace {

constexpr std::size_t kVerses = 31102;

// The verse that a text begins with, "Ge1:1 In the …", "Genesis 1:1"; nothing where it begins otherwise.
std::optional<reader::ReadReferenceResult> ReadVerseReference(std::string_view text) {
  auto read = reader::ReadReference(text);
  if (read && (read->reference.chapter == 0 || read->reference.verse == 0)) read.reset();
  return read;
}

std::string& VerseAt(Version& version, const reader::Reference& at) {
  return version.books[static_cast<std::size_t>(at.book)][at.chapter][at.verse];
}

Version EmptyVersion() { return {std::vector<Book>(reader::kCanon.size()), ""}; }

// One verse a line.
Version FromLines(std::string_view text) {
  Version version = EmptyVersion();
  files::RecordReader lines(text);
  while (!lines.AtEnd()) {
    const auto read = ReadVerseReference(lines.Line());
    if (read) VerseAt(version, read->reference) = PlainWords(read->rest);
  }
  return version;
}

void RequireWhole(const Version& version, const std::string& source) {
  if (version.VerseCount() < kVerses) {
    throw Obstacle(source + " gives " + std::to_string(version.VerseCount()) + " verses, where " +
                   std::to_string(kVerses) + " are wanted.");
  }
}

}  // namespace

std::string OutputOf(const std::string& command, const std::string& program, const std::string& packages) {
  const std::string install =
      "Install " + packages + " (apt-get install " + packages + ") and run this again.";
  if (std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) != 0) {
    throw Obstacle("The program '" + program + "' is missing. " + install);
  }
  std::FILE* const pipe = ::popen((command + " 2>/dev/null").c_str(), "r");
  if (pipe == nullptr) throw Obstacle("The program '" + program + "' cannot be started. " + install);
  std::string output;
  char buffer[1 << 16];
  while (const std::size_t taken = std::fread(buffer, 1, sizeof buffer, pipe)) output.append(buffer, taken);
  const bool succeeded = ::pclose(pipe) == 0;
  if (!succeeded) throw Obstacle("The program '" + program + "' failed. " + install);
  if (output.empty()) throw Obstacle("The program '" + program + "' printed nothing. " + install);
  return output;
}

Version ReadKingJames() {
  Version version =
      FromLines(OutputOf("bible -f 'gen1:1-rev22:21' </dev/null", "bible", "bible-kjv bible-kjv-text"));
  RequireWhole(version, "The program 'bible'");
  return version;
}

Version ReadWorldEnglish() {
  const std::string text =
      OutputOf("mod2imp engWEB2015eb </dev/null", "mod2imp", "libsword-utils sword-text-web");
  Version version = EmptyVersion();
  version.chapter_remark = "(World English Bible)";
  files::RecordReader lines(text);
  std::optional<reader::ReadReferenceResult> at;
  std::string markup;
  const auto put = [&] {
    if (at) {
      // What follows the end of a chapter is matter between books: a glossary, an introduction.
      const std::string_view verse = std::string_view(markup).substr(0, markup.find("<chapter eID"));
      VerseAt(version, at->reference) = PlainWords(verse);
    }
    markup.clear();
  };
  while (!lines.AtEnd()) {
    const std::string_view line = lines.Line();
    if (line.starts_with("$$$")) {
      put();
      at = ReadVerseReference(line.substr(3));
    } else {
      markup.append(line).append(1, ' ');
    }
  }
  put();
  RequireWhole(version, "The text engWEB2015eb");
  return version;
}

namespace {

std::string_view Attribute(std::string_view tag, std::string_view name) {
  const std::string start = " " + std::string(name) + "=\"";
  const std::size_t at = tag.find(start);
  if (at == std::string_view::npos) return {};
  const std::string_view value = tag.substr(at + start.size());
  return value.substr(0, value.find('"'));
}

// Verses are elements with their text inside, or marks at its beginning and end.
Version FromOsis(std::string_view text) {
  Version version = EmptyVersion();
  std::optional<reader::ReadReferenceResult> at;
  std::size_t start = 0;
  const auto put = [&](std::size_t end) {
    if (at) {
      std::string& verse = VerseAt(version, at->reference);
      verse += (verse.empty() ? "" : " ") + PlainWords(text.substr(start, end - start));
    }
    at.reset();
  };
  for (std::size_t open = text.find('<'); open != std::string_view::npos; open = text.find('<', open + 1)) {
    const std::size_t close = text.find('>', open);
    if (close == std::string_view::npos) break;
    const std::string_view tag = text.substr(open + 1, close - open - 1);
    if (!tag.starts_with("verse") && !tag.starts_with("/verse")) continue;
    put(open);
    const bool begins = tag.starts_with("verse") && Attribute(tag, "eID").empty();
    if (begins) at = ReadVerseReference(Attribute(tag, "osisID"));  // of several, the first
    start = close + 1;
  }
  return version;
}

}  // namespace

Version ReadOwnText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw Obstacle("The file " + path + " cannot be read.");
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  const std::string text = files::Decode(bytes);
  Version version = text.find("<osis") != std::string::npos ? FromOsis(text) : FromLines(text);
  if (version.VerseCount() == 0) {
    throw Obstacle(
        "The file " + path +
        " holds no verse: one verse a line is wanted, as in \"Ge1:1 In the beginning\", or OSIS XML.");
  }
  return version;
}

std::string SerifFont() {
  const std::string answer = OutputOf("fc-match -f '%{family[0]}' serif", "fc-match", "fontconfig");
  return answer.substr(0, answer.find_first_of(",\r\n"));
}

}  // namespace lectern::make_data
