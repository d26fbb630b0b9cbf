// The concordances that the data tool makes prove themselves, and the panel lives with files of any size.
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "base/files/record_reader.h"
#include "forms/list_box.h"
#include "forms/rich_text_box.h"
#include "reader/canon.h"
#include "tests/kit/test_window.h"
#include "tests/real/real_data.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

namespace fs = std::filesystem;

// The words of a concordance with their references, in the order of the file.
std::vector<std::pair<std::string, std::vector<std::string>>> Words(const std::string& records) {
  std::vector<std::pair<std::string, std::vector<std::string>>> words;
  files::RecordReader reader(records);
  while (!reader.AtEnd()) {
    const std::string word(reader.Field());
    if (words.empty() || words.back().first != word) words.emplace_back(word, std::vector<std::string>());
    words.back().second.emplace_back(reader.Field());
  }
  return words;
}

std::vector<std::string> Listed(const forms::ListBox& list) {
  std::vector<std::string> items;
  for (int i = 0; i < list.ListCount(); ++i) items.push_back(list.List(i));
  return items;
}

TEST(RealConcordance, HoldsWhatASearchForEachWordLists) {
  for (const bool second : {false, true}) {
    const auto words = Words(RealFile(second ? "CONCORD2.DAT" : "CONCORD.DAT"));
    ASSERT_GT(words.size(), 50U);
    headless::Driver driver(RealData(), [](const std::string&) {});
    if (second) driver.Execute("click Form1.optn");
    driver.Execute("click Form1.Command16");
    driver.Execute("click Form1.op1");
    forms::Window& form = *driver.Program().Touch("Form1");
    const auto& list = dynamic_cast<forms::ListBox&>(*form.Find("lsts"));
    for (std::size_t sample = 0; sample < 20; ++sample) {
      const auto& [word, references] = words[sample * (words.size() - 1) / 19];
      driver.Execute("type Form1.txts \"" + word + "\"");
      driver.Execute("click! Form1.Command22");
      driver.Execute("run");
      EXPECT_EQ(Listed(list), references) << word;
    }
  }
}

// ODDITY(concordance-limit): of a file with more words just the first 4,000 are listed, and a word behind
// them is found all the same by one of its spelling in front.
TEST(RealConcordance, ListsFourThousandWordsOfALargerFile) {
  TemporaryFolder folder;
  std::string records = "\"added\",\"Jude 1 1\"\r\n";
  for (int i = 0; i < 300000; ++i) {
    records += "\"word" + std::to_string(i / 60) + "\",\"Psalms " + std::to_string(i % 150 + 1) + " 1\"\r\n";
  }
  records += "\"ADDED\",\"Ruth 1 1\"\r\n";
  folder.Write("CONCORD.DAT", records);
  headless::Driver driver(folder.Path(), [](const std::string& line) { ADD_FAILURE() << line; });
  driver.Execute("click Form1.cc1");
  forms::Window& form = *driver.Program().Touch("Form1");
  const auto& words = dynamic_cast<forms::ListBox&>(*form.Find("lstc"));
  EXPECT_EQ(words.ListCount(), 4000);
  EXPECT_EQ(words.List(3999), "WORD999");
  driver.Execute("click Form1.lstc \"ADDED\"");
  EXPECT_EQ(Listed(dynamic_cast<forms::ListBox&>(*form.Find("lstc2"))),
            (std::vector<std::string>{"Jude 1 1", "Ruth 1 1"}));
}

// The older builder, over the books under their short names, finds the verses that the whole-text scan finds.
TEST(RealConcordance, OnePassBuilderFindsWhatTheScanFinds) {
  TemporaryFolder folder;
  for (const std::string_view book : reader::kCanon) {
    folder.Write(std::string(book.substr(0, 8)) + ".txt", RealFile("KJV/" + std::string(book) + ".txt"));
  }
  folder.Write("conc.txt", "zion\r\ngrace\r\n");
  folder.Write("concord.dat", "");
  headless::Driver driver(folder.Path(), [](const std::string& line) { ADD_FAILURE() << line; });
  driver.Execute("click! Form1.Command13");
  std::map<std::string, int> counts;
  const std::string records = folder.Read("concord.dat");
  files::RecordReader reader(records);
  std::string last;
  while (!reader.AtEnd()) {
    last = reader.Field();
    ++counts[last];
    for (int field = 1; field < 4; ++field) last += "," + std::string(reader.Field());
  }
  EXPECT_EQ(counts[" ZION"], 153);
  EXPECT_EQ(counts[" GRACE"], 159);
  EXPECT_EQ(last, " GRACE,Revelation,22,21");

  // Nothing stays open: a chapter can be read, and the builder runs again.
  driver.Execute("scroll Form1.scr 3");
  const auto& text = dynamic_cast<forms::RichTextBox&>(*driver.Program().Touch("Form1")->Find("rtxt"));
  EXPECT_TRUE(text.Text->starts_with("1   Now the serpent"));
  driver.Execute("click! Form1.Command13");
  EXPECT_EQ(folder.Read("concord.dat"), records);
}

}  // namespace
}  // namespace lectern
