// Writes what belongs to a version: its book files and the chapter counts.
//
// A book file has a chapter line for each chapter; for each verse its number, blanks up to the fourth column,
// the text with a blank before every word, and seven blanks; CR LF ends each line. The search begins at the
// fourth character, wants a blank before a word, and stops seven characters before the end of a line: in this
// form it finds every word of a verse, the first and the last included. A text that stands in for another
// says what it is in the chapter lines and in the last line.
#pragma once

#include <string>

#include "tools/make_data/texts.h"

namespace lectern::make_data {

// The text of one book's file; `index` is the book's place in the canon, from 0. Readers count verses, so a
// verse that the source lacks still has its line.
std::string BookText(const Version& version, std::size_t index);

// Writes the 66 books into a folder, as "<prefix><book>.txt", and the two books of Samuel under their
// hyphenated names as well. Each stands there under its name without the prefix, too.
void WriteBooks(const Version& version, const std::string& folder, const std::string& prefix);

// Writes the books of a text that stands in for a person's own. The stand-in's chapter lines say what it is;
// an existing book that does not say so is the person's, and stays.
void WriteStandIn(const Version& version, const std::string& folder, const std::string& prefix);

// Makes `bookschap.txt` with the program's own tool from the books of the first version.
void WriteChapterCounts(const Version& version, const std::string& data_folder);

// Replaces a file as a whole.
void WriteFile(const std::string& path, const std::string& bytes);

}  // namespace lectern::make_data
