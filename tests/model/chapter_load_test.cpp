// Chapter loads that the disk or the book itself brings to an end.
#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "forms/rich_text_box.h"
#include "tests/kit/test_window.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

struct OpenBook {
  explicit OpenBook(const std::string& genesis) {
    folder.Write("KJV/Genesis.txt", genesis);
    driver.Execute("start");
  }
  std::string Show(const std::string& chapter) {
    driver.Execute("set Form1.lblc.Caption = \"" + chapter + "\"");
    return dynamic_cast<const forms::RichTextBox&>(*driver.Program().Touch("Form1")->Find("rtxt")).Text;
  }

  TemporaryFolder folder;
  headless::Driver driver{folder.Path(), [](const std::string& line) { ADD_FAILURE() << line; }};
};

TEST(ChapterLoad, KeepsTheTextWhereTheDiskIsFull) {
  // A chapter that goes to the disk in one piece, and one that does in several.
  for (const std::size_t length : {std::size_t{20}, std::size_t{600000}}) {
    OpenBook open("Chapter 1\r\nfirst\r\nChapter 2\r\n" + std::string(length, 'x') + "\r\nthe end");
    int writes = 0;
    open.driver.Files().before = [&](files::Operation operation, const std::string&) {
      if (operation == files::Operation::kWrite && ++writes > (length > 20 ? 1 : 0)) {
        throw base::RunTimeError(base::ErrorNumber::kDiskFull);
      }
    };
    EXPECT_EQ(open.Show("2"), "first\r\nChapter 2\r\n");
    EXPECT_GT(writes, 0);
    EXPECT_EQ(open.folder.Read("KJV/temp.txt"), "(missing)");
    open.driver.Files().before = nullptr;
    open.Show("");
    EXPECT_EQ(open.Show("2"), std::string(length, 'x') + "\r\nthe end\r\n");
  }
}

// Chapters are counted in 16 bits. One too many is a failure like any other: the load ends with the line in
// hand.
TEST(ChapterLoad, CountsNoFurtherThan32767) {
  std::string book;
  for (int chapter = 1; chapter <= 32769; ++chapter) {
    book += "Chapter " + std::to_string(chapter) + "\r\n" + std::to_string(chapter) + "   text\r\n";
  }
  OpenBook open(book);
  EXPECT_EQ(open.Show("32767"), "32767   text\r\nChapter 32768\r\n");
  EXPECT_EQ(open.Show("32769"), "Chapter 32768\r\n");
}

}  // namespace
}  // namespace lectern
