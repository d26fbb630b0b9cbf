// The scan of one book's file: finds the verses that hold the terms and names each as an entry, "Exodus 16
// 15".
//
// Lines are of three kinds, after lower-casing: a verse line begins with a digit and no "-" behind it; a
// chapter line with "chap"; any other is a heading, which takes the place of the book's name and begins the
// counts anew. Chapters and verses are counted, never read.
//
// The scan looks for the first term over the whole file and at lines only around what it found.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/text/characters.h"
#include "base/text/text_list.h"

namespace lectern::search {

// What a search looks for: the texts of the two boxes in lower case, each behind one blank. The blank is the
// left border of a word; an empty box leaves the blank alone, which every verse holds.
struct Terms {
  Terms(std::string_view first_box, std::string_view second_box)
      : first(" " + text::Lower(first_box)), second(" " + text::Lower(second_box)) {}

  // A word to be looked for by itself: the second term is empty, which is less than a blank.
  static Terms OneWord(std::string_view word) {
    Terms terms(word, "");
    terms.second.clear();
    return terms;
  }

  std::string first;
  std::string second;
};

// The rules by which the scans search one verse line: that of the open book, that of the whole text, and that
// of the one-pass builder of the concordance. They differ on purpose in where they stop, in whether a term
// may run on into a longer word, and in what they count.
// The first term is looked for from this character on (from 0), so that a verse's number is no match.
inline constexpr std::size_t kFirstPlace = 3;

// Behind a match each loop goes on here (from 0). A line that is longer may match once more.
inline constexpr std::size_t kNextPlace = 1000;

enum class ScanKind { kBook, kWholeText, kOnePass };

struct LineRules {
  ScanKind kind = ScanKind::kBook;
  std::size_t margin = 0;  // how many characters before a line's end the loops stop; none in a book scan

  // Whether the loop over the first term, or over the second, still looks at a place in a line.
  bool FirstLooksAt(std::size_t place, std::size_t length) const {
    return kind == ScanKind::kBook ? place < length : place + margin <= length;
  }
  bool SecondLooksAt(std::size_t place, std::size_t length) const {
    return kind == ScanKind::kBook ? place < length : place + margin < length;
  }

  // Whether a first term with this character behind it runs on into a longer word. "z" ends a word; so does
  // everything that is no small letter of the plain alphabet.
  bool Rejects(char32_t next) const { return kind != ScanKind::kBook && next >= U'a' && next < U'z'; }

  // Whether a match counts also where the book has no name.
  bool CountsNameless() const { return kind != ScanKind::kWholeText; }

  // Whether a book's name is cut to "song", and whether it gets a capital.
  bool CutsSong() const { return kind != ScanKind::kWholeText; }
  bool Capitalises() const { return kind != ScanKind::kBook; }
};

// What a line came to.
struct LineFindings {
  int hits = 0;
  bool candidate = false;  // a first term was accepted, whatever became of the second
};

// Searches a line of any length in any script, place by place. `next` is the character behind the last
// candidate of the scan so far; where a line ends with the term, the last one stands. Without a second term
// (not even a blank) every candidate is a hit.
LineFindings SearchLine(std::u32string_view line, std::u32string_view first, std::u32string_view second,
                        const LineRules& rules, bool book_has_name, char32_t& next);

struct ScanFindings {
  text::TextList entries;
  int count = 0;          // matches; in a book scan also those without an entry, where the book has no name
  int chapter_lines = 0;  // counted to the end of the file in a book scan only
};

// `book` is the name that entries bear until a heading takes its place. `next` is the character behind the
// last candidate (see SearchLine), for a scan that goes on over several books.
ScanFindings ScanText(std::string_view bytes, const Terms& terms, std::string book, const LineRules& rules,
                      char32_t& next);
ScanFindings ScanText(std::string_view bytes, const Terms& terms, std::string book, const LineRules& rules);

}  // namespace lectern::search
