#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <random>

#include "base/text/characters.h"
#include "tests/desktop/stage.h"
#include "ui/desktop/text/text_positions.h"

namespace lectern::desktop {
namespace {

// Every third character lies beyond U+FFFF, every fifth is a line end.
std::string OddText(int length) {
  std::string text;
  for (int i = 0; i < length; ++i) text += i % 5 == 4 ? "\r\n" : i % 3 == 2 ? "\U0001F54A" : "é";
  return text;
}

TEST(TextPositions, AgreeWithCountingThroughTheText) {
  std::string text = OddText(40);
  TextPositions positions;
  positions.Read(text);
  const auto agrees = [&] {
    int qt = 0;
    std::size_t forms = 0;
    for (std::size_t byte = 0; byte < text.size(); ++forms) {
      const bool line_feed = text[byte] == '\n';
      if (!line_feed) {
        ASSERT_EQ(positions.ToQt(forms), qt);
        ASSERT_EQ(positions.ToForms(qt), forms);
        qt += 1;
      }
      if (text::NextCharacter(text, byte) > 0xFFFF) qt += 1;
    }
    ASSERT_EQ(positions.ToQt(forms), qt);
    ASSERT_EQ(ToDocument(text).size(), qt);
  };
  agrees();
  // Five characters and two line ends, nine by Qt's count, give place to two characters and one line end.
  const std::size_t from = text::ByteOf(text, positions.ToForms(4) + 1);
  const std::size_t to = text::ByteOf(text, positions.ToForms(13) + 1);
  text.replace(from, to - from, "a\r\nb");
  positions.Edited(4, 9, "a\r\nb");
  agrees();
}

class Sheet : public Stage {
 protected:
  QPlainTextEdit* Edit() { return Find<QPlainTextEdit>("sheet"); }

  // As the next handler finds it.
  void ExpectAlike() {
    Do([] {});
    ASSERT_EQ(ToDocument(window->sheet.Text()).toStdString(), Edit()->toPlainText().toStdString());
    const QTextCursor cursor = Edit()->textCursor();
    TextPositions positions;
    positions.Read(window->sheet.Text());
    ASSERT_EQ(positions.ToQt(static_cast<std::size_t>(window->sheet.SelStart())), cursor.selectionStart());
    ASSERT_EQ(positions.ToQt(static_cast<std::size_t>(window->sheet.SelStart + window->sheet.SelLength)),
              cursor.selectionEnd());
  }
};

TEST_F(Sheet, FollowsEveryEditOfThePerson) {
  Do([this] { window->sheet.Text = OddText(60); });
  std::mt19937 chance(7);
  const auto up_to = [&chance](int end) { return static_cast<int>(chance() % static_cast<unsigned>(end)); };
  const auto somewhere = [&] {
    const int place = up_to(Edit()->document()->characterCount());
    return Edit()->document()->characterAt(place).isLowSurrogate() ? place + 1 : place;
  };
  for (int i = 0; i < 400; ++i) {
    QTextCursor cursor = Edit()->textCursor();
    cursor.setPosition(somewhere());
    if (up_to(2) == 0) cursor.setPosition(somewhere(), QTextCursor::KeepAnchor);
    Edit()->setTextCursor(cursor);
    switch (up_to(6)) {
      case 0:
        QTest::keyClick(Edit(), Qt::Key_Return);
        break;
      case 1:
        QTest::keyClick(Edit(), Qt::Key_Backspace);
        break;
      case 2:
        Edit()->undo();
        break;
      case 3:
        Edit()->redo();
        break;
      case 4:
        Edit()->insertPlainText(QString::fromUtf8(OddText(7)));
        break;
      default:
        QTest::keyClicks(Edit(), "word ");
    }
    ASSERT_NO_FATAL_FAILURE(ExpectAlike()) << "after edit " << i;
  }
  Edit()->selectAll();
  QTest::keyClick(Edit(), Qt::Key_Delete);
  ExpectAlike();
  EXPECT_EQ(window->sheet.Text, "");
  Edit()->undo();
  ExpectAlike();
}

TEST_F(Sheet, RunsMoveAlongWithWhatIsTypedAheadOfThem) {
  Do([this] {
    window->sheet.Text = "one\r\ntwo";
    window->sheet.SelStart = 5;
    window->sheet.SelLength = 3;
    window->sheet.SelColor = forms::kRed;
    window->sheet.SelStart = 0;
  });
  QTest::keyClicks(Edit(), "ab");
  QTest::keyClick(Edit(), Qt::Key_Return);
  const QTextBlock two = Edit()->document()->lastBlock();
  ASSERT_EQ(two.layout()->formats().size(), 1);
  EXPECT_EQ(two.layout()->formats()[0].start, 0);
  EXPECT_EQ(two.layout()->formats()[0].length, 3);
  EXPECT_TRUE(Edit()->document()->firstBlock().layout()->formats().isEmpty());
}

TEST_F(Stage, APageShowsANewTextFromItsTopAndMarksWhereTheyStand) {
  std::string verses;
  for (int i = 1; i <= 80; ++i) verses += std::to_string(i) + "  a verse of some length\r\n";
  Do([&] { window->page.Text = verses; });
  auto* const page = Find<QTextEdit>("page");
  QScrollBar* const bar = page->verticalScrollBar();
  EXPECT_EQ(bar->value(), 0);
  QTest::keyClick(page, Qt::Key_PageDown);
  EXPECT_GT(bar->value(), 0);
  QTest::keyClick(page, Qt::Key_Home);
  EXPECT_EQ(bar->value(), 0);

  const int place = window->page.Find("60  a", 0, forms::kFindNoHighlight);
  Do([&] {
    window->page.SelStart = place;
    window->page.SelLength = 2;
    window->page.SelColor = forms::kBlue;
    window->page.SelStart = 0;
  });
  EXPECT_GT(bar->value(), 0);
  QTextCursor cursor(page->document());
  cursor.setPosition(place - 59);  // a line end is one character here
  EXPECT_EQ(cursor.block().text().left(2), "60");
  EXPECT_TRUE(page->viewport()->rect().contains(page->cursorRect(cursor)));
  EXPECT_EQ(cursor.block().layout()->formats().last().format.foreground().color(), QColor(0, 0, 255));

  Do([&] { window->page.Text = verses + "."; });
  EXPECT_EQ(bar->value(), 0);
}

TEST_F(Stage, SelectingInAPageReachesTheControl) {
  Do([this] { window->page.Text = "1   In the beginning\r\n2   And the earth"; });
  auto* const page = Find<QTextEdit>("page");
  page->selectAll();
  Do([] {});
  EXPECT_EQ(window->page.SelLength, 39);  // the line end is two
  QTest::keyClicks(page, "x");
  EXPECT_EQ(window->page.Text, "1   In the beginning\r\n2   And the earth");
  Do([this] {
    window->page.SelStart = 22;
    window->page.SelLength = 1;
  });
  EXPECT_EQ(page->textCursor().selectedText(), "2");
}

}  // namespace
}  // namespace lectern::desktop
