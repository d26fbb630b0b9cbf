// Every chapter of both versions comes up as it stands in its book's file: the lines of the chapter, and
// behind them the heading of the next one, or nothing where it is the book's last.
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "base/files/text_encoding.h"
#include "forms/rich_text_box.h"
#include "reader/canon.h"
#include "tests/real/real_data.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

// What the pane must show for each chapter, taken from the file in the plainest way.
std::vector<std::string> ExpectedChapters(const std::string& path) {
  std::vector<std::string> chapters;
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    line = files::Decode(line) + "\n";
    const bool heading = line.starts_with("Chap");
    if (!chapters.empty()) chapters.back() += line;
    if (heading) chapters.emplace_back();
  }
  return chapters;
}

class ChapterWalk : public testing::TestWithParam<bool> {};

TEST_P(ChapterWalk, ShowsEveryChapterToTheLetter) {
  const bool second = GetParam();
  headless::Driver driver(RealData(), [](const std::string& line) { ADD_FAILURE() << line; });
  driver.Execute("start");
  if (second) driver.Execute("click Form1.optn");
  forms::Window& form = *driver.Program().Touch("Form1");
  const auto& pane = dynamic_cast<forms::RichTextBox&>(*form.Find("rtxt"));
  std::size_t walked = 0;
  for (const std::string_view book : reader::kCanon) {
    const std::string name(book);
    const std::string path = RealData() + (second ? "/NEW/N" : "/KJV/") + name + ".txt";
    const std::vector<std::string> chapters = ExpectedChapters(path);
    driver.Execute("click Form1.lst \"" + name + "\"");
    for (std::size_t chapter = 1; chapter <= chapters.size(); ++chapter, ++walked) {
      driver.Execute("scroll Form1.scr " + std::to_string(chapter));
      ASSERT_EQ(pane.Text(), chapters[chapter - 1]) << name << " " << chapter;
    }
  }
  EXPECT_EQ(walked, 1189U);
}

INSTANTIATE_TEST_SUITE_P(BothVersions, ChapterWalk, testing::Bool());

}  // namespace
}  // namespace lectern
