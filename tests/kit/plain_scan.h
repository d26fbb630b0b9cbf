// The two scans of a text, written down place by place and line by line: slow, and obviously what the rules
// say. They judge the fast scan. Books of ASCII only.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace lectern::search::plain {

enum class Kind { kBook, kWholeText };
using Boxes = std::pair<std::string, std::string>;

struct Findings {
  std::vector<std::string> entries;
  int count = 0;
  int chapter_lines = 0;
};

// Mid of a text, characters counted from 1, as far as there are any.
inline std::string Mid(const std::string& text, std::size_t start, std::size_t length) {
  return start > text.size() ? "" : text.substr(start - 1, length);
}

inline std::string LowerCase(std::string text) {
  for (char& c : text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return text;
}

// Acts at the first place in front of character 1000 that has the term, and at the first one behind it.
template <class Action>
void AtFinds(const std::string& line, const std::string& term, std::size_t at, std::size_t end, Action act) {
  while (at < end) {
    if (Mid(line, at + 1, term.size()) != term) {
      ++at;
      continue;
    }
    act(at);
    if (at >= 1000) break;
    at = 1000;
  }
}

// The margin is kept clear at each line's end by the scan of the whole text.
inline Findings Scan(const std::string& bytes, const Boxes& boxes, std::string book, Kind kind,
                     std::size_t margin = 0) {
  const bool whole = kind == Kind::kWholeText;
  const std::string term1 = " " + LowerCase(boxes.first);
  const std::string term2 = " " + LowerCase(boxes.second);
  Findings found;
  int chapter = 0;
  int verse = 0;
  int code = 0;  // of the character behind the last find
  std::istringstream file(bytes);
  for (std::string line; std::getline(file, line);) {
    if (!file.eof() && line.ends_with('\r')) line.pop_back();
    line = LowerCase(line);
    const std::size_t length = line.size();
    if (length > 0 && line[0] >= '0' && line[0] <= '9' && Mid(line, 2, 1) != "-") {
      ++verse;
      const std::size_t end1 = whole ? length + 1 - std::min(margin, length + 1) : length;
      const std::size_t end2 = whole ? length - std::min(margin, length) : length;
      AtFinds(line, term1, 3, end1, [&](std::size_t at) {
        if (whole) {
          const std::string next = Mid(line, at + 1 + term1.size(), 1);
          if (!next.empty()) code = static_cast<unsigned char>(next[0]);
          if ((code > 96 && code < 122) || book.empty()) return;
          if (book[0] >= 'a' && book[0] <= 'z') book[0] = static_cast<char>(book[0] - 'a' + 'A');
        }
        AtFinds(line, term2, 0, end2, [&](std::size_t) {
          const std::string place = " " + std::to_string(chapter) + " " + std::to_string(verse);
          if (!book.empty()) found.entries.push_back(book + place);
          ++found.count;
        });
      });
    } else if (Mid(line, 1, 4) == "chap") {
      ++chapter;
      ++found.chapter_lines;
      verse = 0;
    } else {
      book = !whole && Mid(line, 1, 4) == "song" ? "song" : line;
      chapter = 0;
      verse = 0;
    }
  }
  return found;
}

}  // namespace lectern::search::plain
