#include "tools/make_data/texts.h"

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
#include "tools/make_data/markup.h"

namespace lectern::make_data {

std::size_t Version::VerseCount() const {
  std::size_t count = 0;
  for (const Book& book : books) {
    for (const auto& [number, chapter] : book) count += chapter.size();
  }
  return count;
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

Version EmptyVersion() { return {std::vector<Book>(reader::kCanon.size()), "", ""}; }

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

namespace {

Version FromModule(const std::vector<MarkedVerse>& verses) {
  Version version = EmptyVersion();
  std::string titles;  // above the first verse of a chapter
  for (const auto& [place, markup] : verses) {
    if (place.verse == 0) {
      titles = place.chapter == 0 ? "" : Titles(markup);
      continue;
    }
    const std::string words = VerseWords(markup);
    if (!words.empty()) VerseAt(version, place) = std::exchange(titles, "") + words;
  }
  return version;
}

// The doxology of Romans stands at the end of chapter 14 in one tradition and at the end of chapter 16 in the
// other, as three verses in both.
void MoveDoxology(Version& version) {
  constexpr std::string_view kBeginnings[] = {"Now to him who is able", "but now is revealed",
                                              "to the only wise God"};
  constexpr int kFirstVerse = 25;
  Book& romans = version.books[static_cast<std::size_t>(*reader::FindBook("Romans"))];
  std::string& last = romans[14][23];
  for (int i = 2; i >= 0; --i) {
    const std::size_t at = last.find(kBeginnings[i]);
    if (at == std::string::npos) return;
    romans[16][kFirstVerse + i] = last.substr(at);
    last.resize(text::TrimEnd(std::string_view(last).substr(0, at)).size());
  }
}

}  // namespace

Version KingJames(const std::vector<MarkedVerse>& module) {
  Version version = FromModule(module);
  RequireWhole(version, "The package sword-text-kjv");
  return version;
}

Version WorldEnglish(const std::vector<MarkedVerse>& module) {
  Version version = FromModule(module);
  MoveDoxology(version);
  RequireWhole(version, "The package sword-text-web");
  version.name = "World English Bible";
  version.terms = "public domain";
  return version;
}

Version ReadKingJames() { return KingJames(ReadKingJamesModule()); }
Version ReadWorldEnglish() { return WorldEnglish(ReadWorldEnglishModule()); }

namespace {

// Verses are elements with their text inside, or marks at its beginning and end.
Version FromOsis(std::string_view text) {
  Version version = EmptyVersion();
  std::optional<reader::ReadReferenceResult> at;
  std::size_t start = 0;
  const auto put = [&](std::size_t end) {
    if (at) {
      std::string& verse = VerseAt(version, at->reference);
      verse += (verse.empty() ? "" : " ") + VerseWords(text.substr(start, end - start));
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
