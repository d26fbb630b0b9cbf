// The whole text as the program shows and opens it.
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

#include "base/files/text_encoding.h"
#include "forms/containers.h"
#include "forms/rich_text_box.h"
#include "reader/canon.h"
#include "tests/kit/session.h"
#include "tests/real/real_data.h"

namespace lectern {
namespace {

// The chapters of a book's file in the plainest way: the lines of each, and behind them the next heading.
Steps ChaptersOf(const std::string& book_file) {
  Steps chapters;
  std::istringstream file(RealFile(book_file));
  for (std::string line; std::getline(file, line);) {
    line = files::Decode(line) + "\n";
    if (!chapters.empty()) chapters.back() += line;
    if (line.starts_with("Chap")) chapters.emplace_back();
  }
  return chapters;
}

TEST(RealText, ShowsEveryChapterToTheLetter) {
  for (const bool second : {false, true}) {
    Session session(RealData());
    EXPECT_EQ(session.Do("start"), Steps{});
    if (second) session.Do("click Form1.optn");
    const auto& pane = session.Get<forms::RichTextBox>("Form1.rtxt");
    std::size_t walked = 0;
    for (const std::string_view book : reader::kCanon) {
      const std::string name(book);
      session.Do("click Form1.lst \"" + name + "\"");
      const Steps chapters = ChaptersOf((second ? "NEW/N" : "KJV/") + name + ".txt");
      for (std::size_t chapter = 1; chapter <= chapters.size(); ++chapter, ++walked) {
        EXPECT_EQ(session.Do("scroll Form1.scr " + std::to_string(chapter)), Steps{});
        ASSERT_EQ(pane.Text(), chapters[chapter - 1]) << name << " " << chapter;
      }
    }
    EXPECT_EQ(walked, 1189U);
  }
}

// The last verse of the canon stands alone before each: a chapter that is missing would leave its book's.
TEST(RealText, HasTheChapterOfEveryEntryOfTheStoryMenu) {
  Session session(RealData());
  const auto& pane = session.Get<forms::RichTextBox>("Form1.rtxt");
  int opened = 0;
  for (const char* version : {"optk", "optn"}) {
    session.Do(std::string("click Form1.") + version);
    for (const forms::Control* submenu : session.Get<forms::Menu>("Form1.dd1").Children()) {
      for (const forms::Control* entry : dynamic_cast<const forms::Menu&>(*submenu).Children()) {
        session.Do("click Form1.lst \"Revelation\"", "scroll Form1.scr 22");
        const std::string before = pane.Text;
        EXPECT_EQ(session.Do("click Form1." + entry->Name()), Steps{});
        EXPECT_TRUE(pane.Text().starts_with("1   ") && pane.Text() != before) << entry->Name();
        ++opened;
      }
    }
  }
  EXPECT_EQ(opened, 70);
}

// ODDITY(concordance-limit): of a file with more words only the first 4,000 are listed, and a word behind
// them is still found through the same word in front.
TEST(RealConcordance, ListsFourThousandWordsOfALargerFile) {
  const TemporaryFolder folder;
  std::string records = "\"added\",\"Jude 1 1\"\r\n";
  for (int i = 0; i < 300000; ++i) {
    records += "\"word" + std::to_string(i / 60) + "\",\"Psalms " + std::to_string(i % 150 + 1) + " 1\"\r\n";
  }
  folder.Write("CONCORD.DAT", records + "\"ADDED\",\"Ruth 1 1\"\r\n");
  Session session(folder.Path());
  EXPECT_EQ(session.Do("click Form1.cc1", "click Form1.lstc \"ADDED\""), Steps{});
  const Steps words = session.Items("Form1.lstc");
  EXPECT_EQ(words.size(), 4000U);
  EXPECT_EQ(words.back(), "WORD999");
  EXPECT_EQ(session.Items("Form1.lstc2"), (Steps{"Jude 1 1", "Ruth 1 1"}));
}

}  // namespace
}  // namespace lectern
