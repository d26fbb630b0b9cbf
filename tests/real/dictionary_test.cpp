// The dictionary as the data tool makes it: whole records, of a length that the panel can show, whose verses
// are those of the text.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>

#include "base/files/record_reader.h"
#include "tests/real/king_james.h"

namespace lectern {
namespace {

TEST(DictionaryFile, TellsEachWordOnceWithAVerseOfTheText) {
  const char* const data = std::getenv("LECTERN_REAL_DATA");
  std::ifstream file(std::string(data == nullptr ? "" : data) + "/cdxdic.dat", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  files::RecordReader reader(bytes);
  std::set<std::string> words;
  while (!reader.AtEnd()) {
    const std::string word(reader.Field());
    const std::string definition(reader.Field());
    const std::string verse(reader.Field());
    std::string wanted = VerseAt(std::string(reader.Field()));
    std::replace(wanted.begin(), wanted.end(), '"', '\'');
    EXPECT_TRUE(!word.empty() && words.insert(word).second) << word;
    EXPECT_TRUE(!definition.empty() && definition.size() <= 400) << word << ": " << definition;
    EXPECT_TRUE(!verse.empty() && verse == wanted) << word << ": " << verse;
  }
  EXPECT_GT(words.size(), 5200U);
}

}  // namespace
}  // namespace lectern
