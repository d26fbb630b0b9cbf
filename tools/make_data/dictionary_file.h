// Makes `cdxdic.dat`: a record for each topic of the index, of the word, a definition, a verse that uses the
// word, and where that verse stands. Topics for which there is no verse are left out.
#pragma once

#include <string>
#include <vector>

#include "tools/make_data/topics.h"
#include "tools/make_data/verses.h"
#include "tools/make_data/wording.h"

namespace lectern::make_data {

// What a topic's items say, in sentences: at most as many characters as the panel shows, cut at the end of an
// item.
std::string Definition(const Topic& topic, const Wording& wording);

// The bytes of the file.
std::string DictionaryRecords(const std::vector<Topic>& topics, const Version& king_james);

}  // namespace lectern::make_data
