// The whole text as the program shows, opens and searches it.
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "base/files/record_reader.h"
#include "base/files/text_encoding.h"
#include "forms/containers.h"
#include "forms/rich_text_box.h"
#include "reader/canon.h"
#include "tests/kit/plain_scan.h"
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

// What the search panel lists for the whole text.
Steps Found(Session& session, const std::string& first, const std::string& second) {
  session.Do("type Form1.txts \"" + first + "\"", "type Form1.txts2 \"" + second + "\"",
             "click! Form1.Command22", "run");
  return session.Items("Form1.lsts");
}

TEST(RealText, IsSearchedAsThePlainScanDoes) {
  constexpr std::size_t kMargin = 7;  // the characters of the caption that sets it at the start
  Session session(RealData());
  session.Do("click Form1.Command16", "click Form1.op1");
  const std::pair<const char*, const char*> searches[] = {
      {"grace", ""},  {"zion", ""},  {"love", ""},      {"amen", ""},  {"in the beginning", ""},
      {"the", "ark"}, {"", "manna"}, {"faith", "hope"}, {"selah", ""}, {"children of israel", "moses"}};
  std::vector<Steps> expected(std::size(searches));
  for (const std::string_view book : reader::kCanon) {
    const std::string text = RealFile("KJV/" + std::string(book) + ".txt");
    for (std::size_t i = 0; i < std::size(searches); ++i) {
      const Steps found = search::plain::Scan(text, {searches[i].first, searches[i].second},
                                              std::string(book), search::plain::Kind::kWholeText, kMargin)
                              .entries;
      expected[i].insert(expected[i].end(), found.begin(), found.end());
    }
  }
  for (std::size_t i = 0; i < std::size(searches); ++i) {
    const auto& [first, second] = searches[i];
    EXPECT_EQ(Found(session, first, second), expected[i]) << first << " and " << second;
    EXPECT_EQ(expected[i].empty(),
              *first == '\0');  // with the second box alone every first blank is rejected
  }
}

TEST(RealConcordance, HoldsWhatASearchForEachWordLists) {
  for (const bool second : {false, true}) {
    std::vector<std::pair<std::string, Steps>> words;
    const std::string records = RealFile(second ? "CONCORD2.DAT" : "CONCORD.DAT");
    for (files::RecordReader reader(records); !reader.AtEnd();) {
      const std::string word(reader.Field());
      if (words.empty() || words.back().first != word) words.emplace_back(word, Steps());
      words.back().second.emplace_back(reader.Field());
    }
    ASSERT_GT(words.size(), 50U);
    Session session(RealData());
    if (second) session.Do("click Form1.optn");
    session.Do("click Form1.Command16", "click Form1.op1");
    for (std::size_t sample = 0; sample < 20; ++sample) {
      const auto& [word, references] = words[sample * (words.size() - 1) / 19];
      EXPECT_EQ(Found(session, word, ""), references) << word;
    }
  }
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

// The one-pass builder, over the books under their short names, finds the verses that the whole-text scan
// finds.
TEST(RealConcordance, IsBuiltInOnePass) {
  const TemporaryFolder folder;
  for (const std::string_view book : reader::kCanon) {
    folder.Write(std::string(book.substr(0, 8)) + ".txt", RealFile("KJV/" + std::string(book) + ".txt"));
  }
  folder.Write("conc.txt", "zion\r\ngrace\r\n");
  folder.Write("concord.dat", "");
  Session session(folder.Path());
  EXPECT_EQ(session.Do("click! Form1.Command13"), Steps{});
  std::map<std::string, int> counts;
  const std::string records = folder.Read("concord.dat");
  std::string last;
  for (files::RecordReader reader(records); !reader.AtEnd();) {
    last = reader.Field();
    ++counts[last];
    for (int field = 1; field < 4; ++field) last += "," + std::string(reader.Field());
  }
  EXPECT_EQ(counts[" ZION"], 153);
  EXPECT_EQ(counts[" GRACE"], 159);
  EXPECT_EQ(last, " GRACE,Revelation,22,21");

  // Nothing stays open: a chapter can be read, and the builder runs again.
  session.Do("scroll Form1.scr 3");
  EXPECT_TRUE(session.Get<forms::RichTextBox>("Form1.rtxt").Text->starts_with("1   Now the serpent"));
  session.Do("click! Form1.Command13");
  EXPECT_EQ(folder.Read("concord.dat"), records);
}

}  // namespace
}  // namespace lectern
