// Writes what belongs to a version: its book files, the chapter counts and the concordance.
//
// A book file has a chapter line for each chapter; for each verse its number, blanks up to the fourth column,
// the text with a blank before every word, and seven blanks; CR LF ends each line. The search begins at the
// fourth character, wants a blank before a word, and stops seven characters before the end of a line: in this
// form it finds every word of a verse, the first and the last included. A text that stands in for another
// says what it is in the chapter lines and in the last line.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "reader/books.h"
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

// The words of a concordance: of all words of three letters or more that are in 2 to 300 verses, the `most`
// that are spread over the most books, in alphabetical order and lower case.
std::vector<std::string> ConcordanceWords(const Version& version, std::size_t most);

// Builds the concordance of one version in a folder that holds the texts: `conc.txt` and the concordance's
// file. Requires: the version's books are in the folder.
void BuildConcordance(const std::string& data_folder, const reader::Version& version,
                      const std::vector<std::string>& words,
                      const std::function<void(std::size_t done, std::size_t all)>& progress);

}  // namespace lectern::make_data
