// Holds the fast scan to the plain one, on small books made at random to hit the odd cases.
#include "search/text_scan.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "tests/kit/plain_scan.h"

namespace lectern::search {
namespace {

class RandomBooks {
 public:
  std::string Book() {
    std::string book;
    for (std::size_t lines = Below(14); lines > 0; --lines) book += Line() + (Below(12) == 0 ? "\n" : "\r\n");
    if (Below(3) == 0) book += Line();  // the last line without its end
    return book;
  }

  std::string Box() {
    static const std::vector<std::string> kBoxes = {
        "",  "grace", "gra", "a", "za",  "Grace",    "of a",    " ",           "   ",
        "s", "zion",  "8",   "-", "a\r", "x\ngrace", "chapter", "the grace of"};
    return kBoxes[Below(kBoxes.size())];
  }

  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(random_()) % limit; }

 private:
  std::string Line() {
    switch (Below(10)) {
      case 0:
        return Below(2) == 0 ? "Chapter 1" : "CHAPTER two";
      case 1:
        return Below(2) == 0 ? "chap" : "cha";
      case 2: {
        static const std::vector<std::string> kHeadings = {"",         "Ruth", "Song of Songs", "1-Samuel",
                                                           "1 Samuel", "zion", " grace"};
        return kHeadings[Below(kHeadings.size())];
      }
      case 3:
        return std::to_string(Below(200));
      case 4:
        return std::to_string(Below(200)) + " " + Words(140 + Below(140)) + Tail();  // over 1000 characters
      default:
        return std::to_string(Below(200)) + (Below(2) == 0 ? "   " : " ") + Words(Below(9)) + Tail();
    }
  }

  std::string Words(std::size_t count) {
    static const std::vector<std::string> kWords = {
        "grace", "Grace", "graceful", "a", "of",     "the",    "ZA",     "zion", "zionz", "grace.",
        "gr",    "ages",  "8",        "-", "(grace", "gracez", "GRACES", "a\ra", "s"};
    std::string words;
    for (std::size_t i = 0; i < count; ++i) words += (i == 0 ? "" : " ") + kWords[Below(kWords.size())];
    return words;
  }

  std::string Tail() { return std::string(Below(3) == 0 ? 7 : 0, ' '); }

  std::mt19937 random_{7};
};

TEST(TextScan, FindsWhatThePlainRulesFind) {
  RandomBooks random;
  int found = 0;
  for (int round = 0; round < 5000; ++round) {
    const std::string book = random.Book();
    const std::string box1 = random.Box();
    const std::string box2 = random.Below(2) == 0 ? "" : random.Box();
    const std::string name = random.Below(10) == 0 ? "" : "ruth";
    const Terms terms(box1, box2);

    const plain::Findings plain_book = plain::BookScan(book, box1, box2, name);
    const ScanFindings of_book = ScanText(book, terms, name, {ScanKind::kBook, 0});
    ASSERT_EQ(of_book.entries, text::TextList(plain_book.entries)) << book << "|" << box1 << "|" << box2;
    ASSERT_EQ(of_book.count, plain_book.count) << book << "|" << box1 << "|" << box2;
    ASSERT_EQ(of_book.chapter_lines, plain_book.chapter_lines) << book;

    const std::size_t margin = random.Below(2) == 0 ? 7 : random.Below(9);
    const plain::Findings plain_tick = plain::WholeTextTick(book, box1, box2, name, margin);
    const ScanFindings of_tick = ScanText(book, terms, name, {ScanKind::kWholeText, margin});
    ASSERT_EQ(of_tick.entries, text::TextList(plain_tick.entries))
        << book << "|" << box1 << "|" << box2 << "|" << margin;
    ASSERT_EQ(of_tick.count, plain_tick.count) << book << "|" << box1 << "|" << box2 << "|" << margin;
    found += of_book.count + of_tick.count;
  }
  EXPECT_GT(found, 5000);  // the books are worth searching
}

TEST(TextScan, CountsCharactersAndReadsBothEncodings) {
  // The same line in the code page and in UTF-8; the margin counts characters, not bytes.
  for (const std::string line : {"1   Caf\xE9 \x97 grace\xE9 na\xEFve", "1   Café — graceé naïve"}) {
    const Terms grace("grace", "");
    EXPECT_EQ(ScanText(line, grace, "Ruth", {ScanKind::kWholeText, 13}).count, 1);
    EXPECT_EQ(ScanText(line, grace, "Ruth", {ScanKind::kWholeText, 14}).count, 0);
    EXPECT_EQ(ScanText(line, Terms("NAÏVE", ""), "Ruth", {ScanKind::kWholeText, 0}).count, 1);
    EXPECT_EQ(ScanText(line, Terms("grace", "naïve"), "Ruth", {ScanKind::kBook, 0}).count, 1);
  }
}

}  // namespace
}  // namespace lectern::search
