// How the dictionary, `cdxdic.dat`, is made. Definitions of our own and a glossary say what words mean, a
// topical index who and where the persons and places are, and two lexicons what stands behind them in Hebrew
// and Greek. The King James text gives each word a verse that uses it.
#pragma once

#include <string>
#include <vector>

#include "tools/make_data/dictionary/definitions.h"
#include "tools/make_data/dictionary/original_words.h"
#include "tools/make_data/dictionary/topics.h"
#include "tools/make_data/texts.h"

namespace lectern::make_data {

struct DictionarySources {
  Definitions own;
  Definitions glossary;
  std::vector<Topic> topics;
  OriginalWords originals;
  WordNumbers numbers;
};

// Reads the index and the lexicons, each with a program of its own at the same time. The modules are those of
// the first and of the second version. Throws an Obstacle that says what is missing.
DictionarySources ReadDictionarySources(const std::vector<MarkedVerse>& king_james,
                                        const std::vector<MarkedVerse>& world_english);

// The bytes of the file: a record for each word that the text has and that can be defined.
std::string DictionaryRecords(const DictionarySources& sources, const Version& king_james);

}  // namespace lectern::make_data
