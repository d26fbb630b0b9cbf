#include "search/highlight.h"

#include <gtest/gtest.h>

#include "search/entry.h"
#include "tests/kit/test_window.h"

namespace lectern::search {
namespace {

TEST(HighlightText, ColoursEveryPlaceAndKeepsTheSelection) {
  TestWindow test;
  forms::RichTextBox pane(test.form, "rtxt");
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

TEST(HighlightText, CountsCharactersInATextOfAnyLengthAndScript) {
  TestWindow test;
  forms::RichTextBox pane(test.form, "rtxt");
  pane.Text = "1   Ἐν grace, é grace";
  EXPECT_EQ(HighlightText(pane, "grace", kMarkColour), 2);
  EXPECT_EQ(pane.Runs().All()[1].start, 16U);
  pane.PersonEdits(0, 4, "ééééé");
  EXPECT_EQ(pane.Find("ἘΝ", 3, forms::kFindNoHighlight), 5);
  EXPECT_EQ(pane.Find("grace", 0, forms::kFindNoHighlight), 8);

  // As many places as a large file has lines; a walk from the beginning to each of them would take hours.
  constexpr int kLines = 300000;
  std::string lines;
  for (int i = 0; i < kLines; ++i) lines += "1   é grace\r\n";
  pane.Text = lines;
  EXPECT_EQ(HighlightText(pane, "grace", kMarkColour), kLines);
  EXPECT_EQ(pane.Runs().All().back().start, 13U * kLines - 7);
  // A second term stands between the places of the first.
  EXPECT_EQ(HighlightText(pane, "é", forms::kBlack), kLines);
  EXPECT_EQ(pane.Runs().All().size(), 2U * kLines);
}

TEST(HighlightText, ColoursOverWhatIsColouredAlready) {
  TestWindow test;
  forms::RichTextBox pane(test.form, "rtxt");
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

TEST(Entry, IsTakenApartBehindItsThirdCharacter) {
  const std::optional<Entry> peter = ParseEntry("1 Peter 2 6");
  ASSERT_TRUE(peter);
  EXPECT_EQ(peter->book, "1 Peter");
  EXPECT_EQ(peter->book_with_blank, "1 Peter ");
  EXPECT_EQ(peter->chapter, "2");
  EXPECT_EQ(peter->verse, "6");
  EXPECT_EQ(ParseEntry("Psalms 119 105 and more")->verse, "105 and more");
  EXPECT_EQ(ParseEntry("Jud5")->book, "Ju");
  EXPECT_FALSE(ParseEntry("Genesis"));
  EXPECT_FALSE(ParseEntry("123"));
}

}  // namespace
}  // namespace lectern::search
