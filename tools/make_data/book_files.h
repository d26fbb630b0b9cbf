// Writes a version of the text as the book files that the reader and the searches read.
//
// A chapter line for each chapter; for each verse its number, blanks up to the fourth column, the text, and
// seven blanks behind it; CR LF after each line. The search begins at the fourth character, wants a blank
// before a word, and stops seven characters before the end of a line: in this form it finds the first and
// the last word of a verse as well as all between.
#pragma once

#include <string>

#include "tools/make_data/verses.h"

namespace lectern::make_data {

// The text of one book's file. Verses are counted by readers, so one that the source lacks still has its
// line.
std::string BookText(const Book& book, const std::string& chapter_remark);

// Writes the 66 books into a folder, as "<prefix><book>.txt", and the two books of Samuel under their
// hyphenated names as well.
void WriteBooks(const Version& version, const std::string& folder, const std::string& prefix);

// Writes the books of a text that stands in for a person's own. The stand-in's chapter lines say what it is:
// a book that is there and does not say so is the person's, and stays.
void WriteStandIn(const Version& version, const std::string& folder, const std::string& prefix);

// Makes `bookschap.txt` in the data folder with the program's own tool, from the book files of the first
// version.
void WriteChapterCounts(const Version& version, const std::string& data_folder);

// The whole contents of a file, put in place at once.
void WriteFile(const std::string& path, const std::string& bytes);

}  // namespace lectern::make_data
