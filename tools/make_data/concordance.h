// The concordances: a list of words out of the text itself, looked up by the program's own builder.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "reader/versions.h"
#include "tools/make_data/verses.h"

namespace lectern::make_data {

// Every word of three letters or more that stands in 2 to 300 verses; of these the `most` that are spread
// over the most books, in alphabetical order, in lower case.
std::vector<std::string> ConcordanceWords(const Version& version, std::size_t most);

// Builds the concordance of one version in a folder that holds the texts: `conc.txt` and the concordance's
// file. The version's books have to lie in the folder.
void BuildConcordance(const std::string& data_folder, const reader::Version& version,
                      const std::vector<std::string>& words,
                      const std::function<void(std::size_t done, std::size_t all)>& progress);

}  // namespace lectern::make_data
