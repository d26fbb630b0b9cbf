#include "tools/make_data/dictionary_file.h"

#include <gtest/gtest.h>

#include "tools/make_data/topics.h"

namespace lectern::make_data {
namespace {

// A text in which two names, a town and a lamp are mentioned.
Version SmallText() {
  Version text{std::vector<Book>(66), ""};
  text.books[0][1] = {{1, "In the beginning there was a lamp, and Amram saw the lamp."},
                      {2, "And Bethabara was a town."},
                      {3, "They said \"Peace\" to Amram, and he was glad of his peace."}};
  text.books[1][6] = {{16, "These are the names."}, {20, "And she bare him Aaron."}};
  return text;
}

std::string RecordsOf(const std::string& module_text) {
  return DictionaryRecords(ParseTopics(module_text), SmallText());
}

TEST(Dictionary, PutsTheSubjectBackAndTakesTheVerseOfTheFirstPassageThatUsesTheWord) {
  EXPECT_EQ(
      RecordsOf("$$$AARON\n<def> <lb/>→ Lineage of <ref osisRef=\"Exod.6.16-Exod.6.20\">Ex 6:16-20</ref>; "
                "<ref osisRef=\"Gen.1.1\">Ge 1:1</ref>:3 <lb/>→ Consecration of, to the office\n"
                "<lb/>→ INSTANCES OF <list> <item>Amram <ref osisRef=\"Gen.1.1\">Ge 1:1</ref></item> "
                "<item>See <ref target=\"Nave:OIL LAMP\">OIL LAMP</ref>, USE OF</item> </list></def>\n"),
      "\"Aaron\",\"Lineage of Aaron. Consecration of Aaron, to the office. Instances of Aaron: Amram; see "
      "Oil "
      "Lamp, Use of.\",\"And she bare him Aaron.\",\"Exodus 6:20\"\r\n");
}

TEST(Dictionary, FindsTheUseOfATopicThatOnlyRefersToAnother) {
  const std::string records = RecordsOf(
      "$$$BETH-ABARA\n<lb/>→ See <ref target=\"Nave:TOWN\">TOWN</ref>\n"
      "$$$LANTERN\n<lb/>→ See <ref target=\"Nave:LIGHT\">LIGHT</ref> <lb/>→ See <ref "
      "target=\"Nave:X\">X</ref>\n"
      "$$$LIGHT (A LAMP)\n<lb/>→ (A thing that shines) <ref osisRef=\"Gen.1\">Ge 1</ref>\n"
      "$$$NOWHERE\n<lb/>→ See <ref target=\"Nave:NOTHING\">NOTHING</ref>\n");
  EXPECT_EQ(
      records,
      "\"Beth-Abara\",\"See Town.\",\"And Bethabara was a town.\",\"Genesis 1:2\"\r\n"
      "\"Lantern\",\"See Light; X.\",\"In the beginning there was a lamp, and Amram saw the "
      "lamp.\",\"Genesis "
      "1:1\"\r\n"
      "\"Light (a Lamp)\",\"A thing that shines.\",\"In the beginning there was a lamp, and Amram saw the "
      "lamp.\",\"Genesis 1:1\"\r\n");
}

TEST(Dictionary, KeepsQuotesOutOfTheFieldsJoinsEqualHeadingsAndStopsAtAnItemsEnd) {
  std::string many =
      "$$$PEACE\n<lb/>→ &#8220;Peace&#8221; to all <ref osisRef=\"Gen.1.3\">Ge 1:3</ref>\n$$$PEACE\n";
  for (int i = 0; i < 30; ++i) many += "<lb/>→ Twenty characters, all of them -And a second";
  const std::string records = RecordsOf(many + "\n");
  EXPECT_TRUE(records.starts_with(
      "\"Peace\",\"'Peace' to all. Twenty characters, all of them. And a second. Twenty"));
  EXPECT_TRUE(records.ends_with(
      " second.\",\"They said 'Peace' to Amram, and he was glad of his peace.\",\"Genesis 1:3\"\r\n"));
  EXPECT_LT(records.size(), 500U);
}

}  // namespace
}  // namespace lectern::make_data
