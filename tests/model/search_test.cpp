// The fast scan against the plain one, and the marks in the pane.
#include <gtest/gtest.h>
#include <random>

#include "search/results.h"
#include "search/text_scan.h"
#include "tests/kit/plain_scan.h"
#include "tests/kit/test_window.h"

namespace lectern::search {
namespace {

using Texts = std::vector<std::string>;

// Small books that hit the odd cases.
class RandomBooks {
 public:
  std::string Book() {
    std::string book;
    for (std::size_t lines = Below(14); lines > 0; --lines) book += Line() + (Below(12) == 0 ? "\n" : "\r\n");
    if (Below(3) == 0) book += Line();  // the last line without its end
    return book;
  }

  std::string Box() {
    return AnyOf({"", "grace", "gra", "a", "za", "Grace", "of a", " ", "   ", "s", "zion", "8", "-", "a\r",
                  "x\ngrace", "chapter", "the grace of"});
  }

  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(random_()) % limit; }

 private:
  std::string AnyOf(const Texts& texts) { return texts[Below(texts.size())]; }

  std::string Line() {
    switch (Below(10)) {
      case 0:
        return AnyOf({"Chapter 1", "CHAPTER two"});
      case 1:
        return AnyOf({"chap", "cha"});
      case 2:
        return AnyOf({"", "Ruth", "Song of Songs", "1-Samuel", "1 Samuel", "zion", " grace"});
      case 3:
        return std::to_string(Below(200));
      case 4:
        return std::to_string(Below(200)) + " " + Words(140 + Below(140));  // over 1000 characters
      default:
        return std::to_string(Below(200)) + AnyOf({"   ", " "}) + Words(Below(9));
    }
  }

  std::string Words(std::size_t count) {
    std::string words;
    for (std::size_t i = 0; i < count; ++i) {
      words += AnyOf({"grace", "Grace", "graceful", "a", "of", "the", "ZA", "zion", "zionz", "grace.", "gr",
                      "ages", "8", "-", "(grace", "gracez", "GRACES", "a\ra", "s"}) +
               (i + 1 < count ? " " : "");
    }
    return words + std::string(Below(3) == 0 ? 7 : 0, ' ');
  }

  std::mt19937 random_{7};
};

TEST(TextScan, FindsWhatThePlainScanFinds) {
  RandomBooks random;
  int found = 0;
  for (int round = 0; round < 10000; ++round) {
    const std::string book = random.Book();
    const plain::Boxes boxes = {random.Box(), random.Below(2) == 0 ? "" : random.Box()};
    const std::string name = random.Below(10) == 0 ? "" : "ruth";
    const bool whole = round % 2 == 0;
    const std::size_t margin = !whole ? 0 : random.Below(2) == 0 ? 7 : random.Below(9);
    const plain::Findings plain =
        plain::Scan(book, boxes, name, whole ? plain::Kind::kWholeText : plain::Kind::kBook, margin);
    const ScanFindings fast = ScanText(book, Terms(boxes.first, boxes.second), name,
                                       {whole ? ScanKind::kWholeText : ScanKind::kBook, margin});
    SCOPED_TRACE(book + "|" + boxes.first + "|" + boxes.second + "|" + std::to_string(margin));
    ASSERT_EQ(fast.entries, text::TextList(plain.entries));
    ASSERT_EQ(fast.count, plain.count);
    ASSERT_EQ(whole ? 0 : fast.chapter_lines, whole ? 0 : plain.chapter_lines);
    found += fast.count;
  }
  EXPECT_GT(found, 5000);  // the books are worth searching
}

// The same line in the code page and in UTF-8; the margin counts characters, not bytes.
TEST(TextScan, CountsCharactersAndReadsBothEncodings) {
  for (const std::string line : {"1   Caf\xE9 \x97 grace\xE9 na\xEFve", "1   Café — graceé naïve"}) {
    const Terms grace("grace", "");
    EXPECT_EQ(ScanText(line, grace, "Ruth", {ScanKind::kWholeText, 13}).count, 1);
    EXPECT_EQ(ScanText(line, grace, "Ruth", {ScanKind::kWholeText, 14}).count, 0);
    EXPECT_EQ(ScanText(line, Terms("NAÏVE", ""), "Ruth", {ScanKind::kWholeText, 0}).count, 1);
    EXPECT_EQ(ScanText(line, Terms("grace", "naïve"), "Ruth", {ScanKind::kBook, 0}).count, 1);
  }
}

struct Marks : testing::Test {
  TestWindow test;
  forms::RichTextBox pane{test.form, "rtxt"};
};

TEST_F(Marks, ColoursEveryPlaceAndKeepsTheSelection) {
  pane.Text = "1   Grace and disgraced, GRACE";
  pane.SelStart = 3;
  pane.SelLength = 2;
  EXPECT_EQ(HighlightText(pane, "grace", kMarkColour), 3);
  EXPECT_EQ(pane.SelStart, 3);
  EXPECT_EQ(pane.SelLength, 2);
  ASSERT_EQ(pane.Runs().All().size(), 3U);
  EXPECT_EQ(pane.Runs().All()[1].start, 17U);
  EXPECT_EQ(HighlightText(pane, "", kMarkColour), 0);
  // ODDITY(first-character)
  pane.Text = "Grace and grace";
  EXPECT_EQ(HighlightText(pane, "grace", kMarkColour), 0);
  EXPECT_TRUE(pane.Runs().All().empty());
}

TEST_F(Marks, CountsCharactersInATextOfAnyLengthAndScript) {
  pane.Text = "1   Ἐν grace, é grace";
  EXPECT_EQ(HighlightText(pane, "grace", kMarkColour), 2);
  EXPECT_EQ(pane.Runs().All()[1].start, 16U);
  pane.PersonEdits(0, 4, "ééééé");
  EXPECT_EQ(pane.Find("ἘΝ", 3, forms::kFindNoHighlight), 5);
  EXPECT_EQ(pane.Find("grace", 0, forms::kFindNoHighlight), 8);

  // With as many places as a large file has lines a walk from the beginning to each would take hours.
  constexpr int kLines = 300000;
  std::string lines;
  for (int i = 0; i < kLines; ++i) lines += "1   é grace\r\n";
  pane.Text = lines;
  EXPECT_EQ(HighlightText(pane, "grace", kMarkColour), kLines);
  EXPECT_EQ(pane.Runs().All().back().start, 13U * kLines - 7);
  EXPECT_EQ(HighlightText(pane, "é", forms::kBlack), kLines);
  EXPECT_EQ(pane.Runs().All().size(), 2U * kLines);
}

TEST_F(Marks, ColoursOverWhatIsColouredAlready) {
  pane.Text = "in the disgraceful light";
  HighlightText(pane, "grace", kMarkColour);
  HighlightText(pane, "disgraceful", forms::kBlack);
  ASSERT_EQ(pane.Runs().All().size(), 1U);
  HighlightText(pane, "ace", kMarkColour);
  HighlightText(pane, "the dis", kMarkColour);
  std::string marked;
  for (int i = 0; i < 24; ++i) {
    pane.SelStart = i;
    marked += pane.SelColor == kMarkColour ? 'x' : pane.SelColor == forms::kBlack ? 'b' : '.';
  }
  EXPECT_EQ(marked, "...xxxxxxxbbxxxbbb......");
}

TEST(Entry, IsDividedBehindItsThirdCharacter) {
  const std::optional<Entry> peter = ParseEntry("1 Peter 2 6");
  ASSERT_TRUE(peter);
  EXPECT_EQ(peter->book + "|" + peter->book_with_blank + "|" + peter->chapter + "|" + peter->verse,
            "1 Peter|1 Peter |2|6");
  EXPECT_EQ(ParseEntry("Psalms 119 105 and more")->verse, "105 and more");
  EXPECT_EQ(ParseEntry("Jud5")->book, "Ju");
  EXPECT_FALSE(ParseEntry("Genesis"));
  EXPECT_FALSE(ParseEntry("123"));
}

}  // namespace
}  // namespace lectern::search
