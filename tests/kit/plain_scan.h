// A plain transcription of the two scans, place by place and line by line: slow, and obviously what the rules
// say. It judges the fast one. Books of ASCII only.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace lectern::search::plain {

inline bool IsNumeric(const std::string& text) {
  return text.size() == 1 && text[0] >= '0' && text[0] <= '9';
}

// Mid of a text, characters counted from 1, as far as there are any.
inline std::string Mid(const std::string& text, std::size_t start, std::size_t length) {
  return start > text.size() ? "" : text.substr(start - 1, length);
}

inline std::string LowerCase(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

inline std::vector<std::string> Lines(const std::string& bytes) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
    lines.push_back(bytes.substr(at, end - at));
    if (end < bytes.size() && !lines.back().empty() && lines.back().back() == '\r') lines.back().pop_back();
    at = end + 1;
  }
  return lines;
}

struct Findings {
  std::vector<std::string> entries;
  int count = 0;
  int chapter_lines = 0;
};

// The scan of the open book.
inline Findings BookScan(const std::string& bytes, const std::string& box1, const std::string& box2,
                         std::string book) {
  Findings result;
  int chapter = 0;
  int verse = 0;
  for (const std::string& raw : Lines(bytes)) {
    const std::string line = LowerCase(raw);
    if (IsNumeric(Mid(line, 1, 1)) && Mid(line, 2, 1) != "-") {
      ++verse;
      const std::string term1 = " " + LowerCase(box1);
      const std::string term2 = " " + LowerCase(box2);
      std::size_t i = 3;
      while (i < line.size()) {
        if (Mid(line, i + 1, term1.size()) != term1) {
          ++i;
          continue;
        }
        std::size_t j = 0;
        while (j < line.size()) {
          if (Mid(line, j + 1, term2.size()) != term2) {
            ++j;
            continue;
          }
          if (!book.empty()) {
            result.entries.push_back(book + " " + std::to_string(chapter) + " " + std::to_string(verse));
          }
          ++result.count;
          if (j >= 1000) break;  // once up to character 1000, once behind it
          j = 1000;
        }
        if (i >= 1000) break;
        i = 1000;
      }
    } else if (Mid(line, 1, 4) == "chap") {
      ++chapter;
      verse = 0;
      ++result.chapter_lines;
    } else {
      book = Mid(line, 1, 4) == "song" ? "song" : line;
      chapter = 0;
      verse = 0;
    }
  }
  return result;
}

// One book of the scan of the whole text.
inline Findings WholeTextTick(const std::string& bytes, const std::string& box1, const std::string& box2,
                              std::string book, std::size_t margin) {
  Findings result;
  int chapter = 0;
  int verse = 0;
  int code = 0;
  for (const std::string& raw : Lines(bytes)) {
    const std::string line = LowerCase(raw);
    if (IsNumeric(Mid(line, 1, 1)) && Mid(line, 2, 1) != "-") {
      ++verse;
      const std::string term1 = " " + LowerCase(box1);
      const std::string term2 = " " + LowerCase(box2);
      std::size_t i = 3;
      while (i + margin <= line.size()) {
        if (Mid(line, i + 1, term1.size()) != term1) {
          ++i;
          continue;
        }
        const std::string next = Mid(line, i + 1 + term1.size(), 1);
        if (!next.empty()) code = static_cast<unsigned char>(next[0]);
        const bool rejected = code > 96 && code < 122;
        if (!rejected && !book.empty()) {
          if (book[0] >= 'a' && book[0] <= 'z') book[0] = static_cast<char>(book[0] - 'a' + 'A');
          std::size_t j = 0;
          while (j + margin < line.size()) {
            if (Mid(line, j + 1, term2.size()) != term2) {
              ++j;
              continue;
            }
            result.entries.push_back(book + " " + std::to_string(chapter) + " " + std::to_string(verse));
            ++result.count;
            if (j >= 1000) break;
            j = 1000;
          }
        }
        if (i >= 1000) break;
        i = 1000;
      }
    } else if (Mid(line, 1, 4) == "chap") {
      ++chapter;
      verse = 0;
    } else {
      book = line;
      chapter = 0;
      verse = 0;
    }
  }
  return result;
}

}  // namespace lectern::search::plain
