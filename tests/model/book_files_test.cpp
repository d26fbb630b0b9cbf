#include "tools/make_data/book_files.h"

#include <gtest/gtest.h>

#include "reader/canon.h"
#include "tests/kit/test_window.h"
#include "tools/make_data/verses.h"

namespace lectern::make_data {
namespace {

TEST(BookFiles, OfAPersonAreNotTakenByTheStandIn) {
  const TemporaryFolder folder;
  folder.Write("NGenesis.txt", "Chapter 1\r\n1   My own text.       \r\n");
  folder.Write("NExodus.txt", "Chapter 1 (Stand-in)\r\n1   Made before.       \r\n");
  folder.Write("NLeviticus.txt", "");
  Version stand_in{.books = std::vector<Book>(reader::kCanon.size()), .chapter_remark = "(Stand-in)"};
  for (std::size_t book = 0; book < 4; ++book) stand_in.books[book][1][1] = "Made now.";
  WriteStandIn(stand_in, folder.Path(), "N");
  EXPECT_EQ(folder.Read("NGenesis.txt"), "Chapter 1\r\n1   My own text.       \r\n");
  for (const char* name : {"NExodus.txt", "NLeviticus.txt", "NNumbers.txt"}) {
    EXPECT_EQ(folder.Read(name), "Chapter 1 (Stand-in)\r\n1   Made now.       \r\n") << name;
  }
}

}  // namespace
}  // namespace lectern::make_data
