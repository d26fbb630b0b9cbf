// The scan of one book's file: finds the verses that hold the terms and gives an entry for each, "Exodus 16
// 15".
//
// There are three kinds of lines, in any case of letters: a verse line begins with a digit that no "-"
// follows; a chapter line begins with "chap"; any other line is a heading, which replaces the book's name and
// resets the counts. Chapters and verses are counted, never read.
//
// The scan looks for the first term in the whole file, and examines only the lines in which it finds it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/text/characters.h"
#include "base/text/text_list.h"

namespace lectern::search {

// The texts of the two boxes in lower case, each after one blank. The blank is the left border of a word; an
// empty box gives a single blank, which every verse holds.
struct Terms {
  Terms(std::string_view first_box, std::string_view second_box)
      : first(" " + text::Lower(first_box)), second(" " + text::Lower(second_box)) {}

  // A single word. The second term is empty, without even a blank.
  static Terms OneWord(std::string_view word) {
    Terms terms(word, "");
    terms.second.clear();
    return terms;
  }

  std::string first;
  std::string second;
};

// The scans of the open book, of the whole text, and of the one-pass builder of the concordance. They differ
// in where they stop in a line, in whether a term may be the beginning of a longer word, and in what they
// count.
enum class ScanKind { kBook, kWholeText, kOnePass };

struct LineRules {
  ScanKind kind = ScanKind::kBook;
  std::size_t margin = 0;  // how many characters before a line's end the scan stops; unused in a book scan

  // Whether the scan still looks for the first term, or for the second, at a place in a line.
  bool FirstLooksAt(std::size_t place, std::size_t length) const {
    return kind == ScanKind::kBook ? place < length : place + margin <= length;
  }
  bool SecondLooksAt(std::size_t place, std::size_t length) const {
    return kind == ScanKind::kBook ? place < length : place + margin < length;
  }

  // Whether a first term before this character is only the beginning of a longer word. "z" ends a word, as
  // does every character that is not a small letter of ASCII.
  bool Rejects(char32_t next) const { return kind != ScanKind::kBook && next >= U'a' && next < U'z'; }

  bool CountsNameless() const { return kind != ScanKind::kWholeText; }  // also if the book has no name
  bool CutsSong() const { return kind != ScanKind::kWholeText; }        // a name "song…" becomes "song"
  bool Capitalises() const { return kind != ScanKind::kBook; }          // the names of books
};

enum class LineKind { kVerse, kChapter, kHeading };

LineKind KindOf(std::string_view line);

struct ScanFindings {
  text::TextList entries;
  int count = 0;          // of matches; greater than that of the entries if a book has no name
  int chapter_lines = 0;  // in the whole file for a book scan, else up to the last match
  char32_t next = 0;      // the character after the last first term that was found
};

// `book` is the name in the entries until a heading replaces it. If a line ends with the first term, `next`
// keeps its previous value; a scan of several books passes it on.
ScanFindings ScanText(std::string_view bytes, const Terms& terms, std::string book, const LineRules& rules,
                      char32_t next = 0);

}  // namespace lectern::search
