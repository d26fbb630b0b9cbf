#include "ui/quotation.h"

#include <gtest/gtest.h>

#include "tests/kit/test_window.h"
#include "ui/headless/driver.h"

namespace lectern::ui {
namespace {

constexpr std::string_view kChapter =
    "A psalm \u00b7 of David\r\n"
    "1   The LORD is my shepherd;       \r\n"
    "2   He maketh me to lie down: he leadeth me.       \r\n"
    "10  The gr\u00fcn pastures.\r\n"
    "Chapter 24\r\n";

// As copied from the first place where `from` stands to the end of the first `to`.
std::string Quoted(std::string_view from, std::string_view to, const std::string& version = "KJV") {
  const auto characters_before = [](std::size_t byte) {
    std::size_t count = 0;
    for (const char c : kChapter.substr(0, byte)) count += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    return count;
  };
  const std::size_t start = characters_before(kChapter.find(from));
  const std::size_t end = characters_before(kChapter.find(to) + to.size());
  return Quotation(kChapter, start, end - start, {"Psalms", "23", version});
}

TEST(Quotation, SaysWhereTheWordsStand) {
  EXPECT_EQ(Quoted("LORD", "shepherd"), "LORD is my shepherd (Psalms 23:1, KJV)");
  EXPECT_EQ(Quoted("gr\u00fcn", "gr\u00fcn"), "gr\u00fcn (Psalms 23:10, KJV)");
  EXPECT_EQ(Quoted("of David", "of David", ""), "of David (Psalms 23)");
}

TEST(Quotation, LeavesTheNumberOfASingleVerseOut) {
  EXPECT_EQ(Quoted("1   The", "shepherd;       \r\n"), "The LORD is my shepherd; (Psalms 23:1, KJV)");
  // What reaches no further than the number of the next verse is of the verse before.
  EXPECT_EQ(Quoted("1   The", "\r\n2  "), "The LORD is my shepherd; (Psalms 23:1, KJV)");
}

TEST(Quotation, OfSeveralVersesKeepsTheirNumbersInALineEach) {
  EXPECT_EQ(Quoted("shepherd", "pastures."),
            "shepherd;\n2 He maketh me to lie down: he leadeth me.\n10 The gr\u00fcn pastures. (Psalms "
            "23:1-10, KJV)");
}

TEST(Quotation, LeavesTheHeadingOfTheNextChapterOut) {
  const std::string whole = Quotation(kChapter, 0, kChapter.size(), {"Psalms", "23", "KJV"});
  EXPECT_TRUE(whole.starts_with("A psalm \u00b7 of David\n1 The LORD")) << whole;
  EXPECT_TRUE(whole.ends_with("The gr\u00fcn pastures. (Psalms 23:1-10, KJV)")) << whole;
  EXPECT_EQ(Quoted("Chapter 24", "24"), "");
  EXPECT_EQ(Quotation(kChapter, 3, 0, {"Psalms", "23", "KJV"}), "");
}

// What stands in the pane is quoted, and no chapter that is not there.
TEST(Quotation, TellsOfTheTextInThePaneWhereNoChapterCouldBeShown) {
  const TemporaryFolder folder;
  folder.Write("NEW/NGenesis.txt", "");
  folder.Write("KJV/Jude.txt", "Chapter 1\r\n1   Mercy unto you.\r\n2   Only wise.\r\n");
  headless::Driver driver(folder.Path(), [](const std::string& line) { ADD_FAILURE() << line; });
  forms::Window& form = *driver.Program().Touch("Form1");
  auto& pane = dynamic_cast<forms::RichTextBox&>(*form.Find("rtxt"));
  const auto quoted_after = [&](const char* act) {
    driver.Execute(act);
    pane.SelStart = 0;
    pane.SelLength = static_cast<int>(pane.Text().size());
    return pane.Quote();
  };
  EXPECT_EQ(quoted_after("click Form1.lst \"Jude\""), "1 Mercy unto you.\n2 Only wise. (Jude 1:1-2, KJV)");
  EXPECT_EQ(quoted_after("set Form1.lblc.Caption = \"9\""), "Only wise. (Jude, KJV)");
  // This version has no such book: the pane keeps its text, whatever the labels say.
  EXPECT_EQ(quoted_after("click Form1.optn"), "Only wise. (Jude, KJV)");
}

}  // namespace
}  // namespace lectern::ui
