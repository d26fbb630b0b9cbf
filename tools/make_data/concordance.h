// The concordance of a version: which words it lists, and where they stand.
#pragma once

#include <string>
#include <vector>

#include "reader/books.h"
#include "tools/make_data/texts.h"

namespace lectern::make_data {

// The `most` words that a reader looks up, in lower case and alphabetical order: names that stand in four
// verses or more, then what has a meaning of its own by how often it is used. A word stands for its forms
// (angel, angels), which count half by themselves. Left out are words of grammar, numbers, and words of more
// than a thousand verses, except for the chief ones.
std::vector<std::string> ConcordanceWords(const Version& version, std::size_t most);

// The records of a concordance, byte for byte as the program's builder makes them from the book files of the
// data folder, but for the last word's, which the builder writes twice. It reads each file once for all
// words. Requires: the words consist of the letters a to z in either case, and of hyphens.
std::string ConcordanceRecords(const std::string& data_folder, const reader::Version& version,
                               const std::vector<std::string>& words);

}  // namespace lectern::make_data
