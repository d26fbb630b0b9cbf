#include "tools/make_data/plates/sections.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "reader/reference.h"
#include "tools/make_data/written_texts.h"

namespace lectern::plates {

namespace {

std::string_view Trimmed(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\r\n");
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(" \t\r\n") - start + 1);
}

// From a chapter and verse to another; a verse of 0 is a chapter's first or last.
struct Range {
  int from_chapter = 1, from_verse = 0, to_chapter = 999, to_verse = 0;
};

// "12", "12-19", "12:3", "12:3-9", "12:3-13:4".
Range ReadRange(const std::string& text) {
  const char* at = text.data();
  const char* const end = at + text.size();
  const auto number = [&] {
    int value = 0;
    at = std::from_chars(at, end, value).ptr;
    return value;
  };
  const auto skip = [&](char sign) {
    const bool is_there = at < end && *at == sign;
    at += is_there ? 1 : 0;
    return is_there;
  };
  Range range;
  range.from_chapter = range.to_chapter = number();
  if (skip(':')) range.from_verse = range.to_verse = number();
  if (skip('-')) {
    const int value = number();
    if (skip(':')) {
      range.to_chapter = value;
      range.to_verse = number();
    } else if (range.from_verse > 0) {
      range.to_verse = value;
    } else {
      range.to_chapter = value;
    }
  }
  if (at != end || range.from_chapter == 0) throw make_data::Obstacle("No passage: " + text);
  return range;
}

void Append(std::string& words, const make_data::Book& book, const Range& range) {
  for (const auto& [chapter, verses] : book) {
    for (const auto& [verse, text] : verses) {
      const bool is_behind_start =
          chapter > range.from_chapter || (chapter == range.from_chapter && verse >= range.from_verse);
      const bool is_before_end =
          chapter < range.to_chapter ||
          (chapter == range.to_chapter && (range.to_verse == 0 || verse <= range.to_verse));
      if (is_behind_start && is_before_end) words += text + " ";
    }
  }
}

}  // namespace

std::string Section::Value(std::string_view key) const {
  for (const auto& [name, value] : entries) {
    if (name == key) return value;
  }
  return {};
}

std::vector<std::string> Section::Values(std::string_view key) const {
  std::vector<std::string> values;
  for (const auto& [name, value] : entries) {
    if (name == key) values.push_back(value);
  }
  return values;
}

std::vector<Section> ReadSections(std::string_view text) {
  std::vector<Section> sections;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (Trimmed(line).empty() || line.starts_with('#')) continue;
    if (line.starts_with('[')) {
      sections.emplace_back().title = line.substr(1, line.find(']') - 1);
    } else if (sections.empty()) {
      throw make_data::Obstacle("A line comes before the first section: " + std::string(line));
    } else if (line.starts_with(' ')) {
      sections.back().body.emplace_back(line);
    } else {
      const std::size_t colon = std::min(line.find(':'), line.size());
      sections.back().entries.emplace_back(Trimmed(line.substr(0, colon)),
                                           Trimmed(line.substr(std::min(colon + 1, line.size()))));
    }
  }
  return sections;
}

std::vector<std::string> Parts(std::string_view text, char separator) {
  std::vector<std::string> parts;
  while (!Trimmed(text).empty()) {
    const std::size_t end = std::min(text.find(separator), text.size());
    parts.emplace_back(Trimmed(text.substr(0, end)));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return parts;
}

std::string_view WrittenTable(std::string_view name) {
  for (const make_data::WrittenText& table : make_data::kPlateTables) {
    if (table.file == name) return table.text;
  }
  throw make_data::Obstacle("There is no table " + std::string(name) + ".");
}

std::string ShownPassage(const std::string& passage) {
  std::string shown;
  for (const char sign : passage) shown += sign == '-' ? std::string("\u2013") : std::string(1, sign);
  return shown;
}

std::string WordsOf(const std::string& passage, const make_data::Version& text) {
  std::string words;
  int book = -1;
  for (const std::string& part : Parts(passage, ';')) {
    std::string range = part;
    const std::size_t blank = part.rfind(' ');
    const auto is_letter = [](char sign) { return std::isalpha(static_cast<unsigned char>(sign)) != 0; };
    const bool names_book = std::any_of(part.begin(), part.end(), is_letter);
    const bool is_whole_book = is_letter(part.back());
    if (names_book) {
      book = reader::FindBook(is_whole_book ? part : part.substr(0, blank)).value_or(-1);
      range = is_whole_book ? "" : part.substr(blank + 1);
    }
    if (book < 0) throw make_data::Obstacle("No passage: " + part);
    const std::size_t before = words.size();
    for (const std::string& each : Parts(range.empty() ? "1-999" : range, ',')) {
      Append(words, text.books[static_cast<std::size_t>(book)], ReadRange(each));
    }
    if (words.size() == before) throw make_data::Obstacle("There is no verse in " + part + ".");
  }
  return words;
}

}  // namespace lectern::plates
