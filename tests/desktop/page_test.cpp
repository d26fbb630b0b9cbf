// The page as it is read, the editor, and how positions in them are counted.
#include <QAction>
#include <QClipboard>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QWheelEvent>
#include <random>
#include <stdexcept>

#include "base/text/characters.h"
#include "tests/desktop/stage.h"
#include "tests/kit/temporary_folder.h"
#include "ui/desktop/app/desktop.h"
#include "ui/desktop/text/text_positions.h"
#include "ui/desktop/text/verse_page.h"

namespace lectern::desktop {
namespace {

class Page : public Stage {
 protected:
  Page() {
    for (int i = 1; i <= 80; ++i) verses += std::to_string(i) + "  a verse of some length\r\n";
    Do([this] { window->page.Text = verses; });
  }

  QTextEdit* Edit() { return Find<QTextEdit>("page"); }
  QScrollBar* Bar() { return Edit()->verticalScrollBar(); }

  // As the search marks what it found.
  void Mark(const char* words) {
    window->page.SelStart = window->page.Find(words, 0, forms::kFindNoHighlight);
    window->page.SelLength = 2;
    window->page.SelColor = forms::kBlue;
    window->page.SelStart = 0;
  }

  QRect PlaceOf(const char* words) { return Edit()->cursorRect(Edit()->document()->find(words)); }
  bool IsSeen(const char* words) { return Edit()->viewport()->rect().contains(PlaceOf(words)); }
  QColor ColourOf(const char* words) {
    return Edit()->document()->find(words).block().layout()->formats().last().format.foreground().color();
  }

  // The number of the verse whose line is at the top.
  int TopVerse() {
    return Edit()->cursorForPosition(QPoint(100, 0)).block().text().section(' ', 0, 0).toInt();
  }

  std::string verses;
};

TEST_F(Page, ShowsANewTextFromItsTopAndScrollsToMarks) {
  EXPECT_EQ(Bar()->value(), 0);
  Key("page", Qt::Key_PageDown);
  EXPECT_GT(Bar()->value(), 0);
  Key("page", Qt::Key_Home);
  EXPECT_EQ(Bar()->value(), 0);
  Do([this] { Mark("60  a"); });
  EXPECT_GT(Bar()->value(), 0);
  EXPECT_TRUE(IsSeen("60  a"));
  EXPECT_EQ(ColourOf("60  a"), QColor(0, 0, 255));
  Do([this] { window->page.Text = verses + "."; });
  EXPECT_EQ(Bar()->value(), 0);
}

TEST_F(Page, StaysWhereItIsWhenTheSameTextIsShownAgain) {
  Bar()->setValue(700);
  Do([this] { window->page.Show({verses, {}}); });
  Do([this] { window->panel.Visible = true; });
  Do([this] { window->panel.Visible = false; });
  EXPECT_EQ(Bar()->value(), 700);
  // Marks of the text before are gone, and new ones show.
  Do([this] { Mark("80  a"); });
  Do([this] {
    window->page.Show({verses, {}});
    Mark("1  a");
  });
  EXPECT_EQ(Edit()->document()->lastBlock().previous().layout()->formats().size(), 2);  // number and gap
  EXPECT_TRUE(IsSeen("1  a"));
}

TEST_F(Page, BringsAMarkInTheFirstLinesOutFromUnderAPanel) {
  Do([this] {
    window->panel.Left = 280 * forms::kTwipsPerPixel;
    window->panel.Top = 270 * forms::kTwipsPerPixel;
    window->panel.Visible = true;  // over the upper part of the page
    Mark("3  a");
  });
  const QRect panel(Edit()->viewport()->mapFrom(&view->Face(), Find("panel")->pos()), Find("panel")->size());
  EXPECT_FALSE(panel.intersects(PlaceOf("3  a")));
  EXPECT_TRUE(IsSeen("3  a"));
  Do([this] { window->page.Text = verses + "."; });
  EXPECT_LT(PlaceOf("1  a").top(), 30);
}

TEST_F(Page, IsEnlargedFromEverywhereAndKeepsPlaceAndMarks) {
  Do([this] { Mark("42  a"); });
  const auto size = [this] { return Edit()->font().pointSizeF(); };
  const double at_first = size();
  const QFont others = Find("list")->font();
  const int verse = TopVerse();
  EXPECT_GT(verse, 5);
  for (int i = 0; i < 5; ++i) Key("list", Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_NEAR(size(), at_first * 1.61, 0.1);
  EXPECT_EQ(TopVerse(), verse);
  EXPECT_EQ(ColourOf("42  a"), QColor(0, 0, 255));
  EXPECT_EQ(Find("list")->font(), others);
  EXPECT_EQ(window->page.FontSize, 0);  // nothing that would be stored

  Do([this] { window->page.Text = verses + "."; });
  EXPECT_NEAR(size(), at_first * 1.61, 0.1);
  Key("line_box", Qt::Key_0, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(size(), at_first);
  for (int i = 0; i < 100; ++i) Key("page", Qt::Key_Minus, Qt::ControlModifier);
  const double smallest = size();
  EXPECT_GT(smallest, at_first / 2);
  QWheelEvent turn(QPointF(50, 50), Edit()->viewport()->mapToGlobal(QPointF(50, 50)), {}, QPoint(0, 120),
                   Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(Edit()->viewport(), &turn);
  EXPECT_NEAR(size(), smallest * 1.1, 0.01);
}

TEST_F(Page, IsQuotedByKeyAndByMenu) {
  QClipboard* const clipboard = QApplication::clipboard();
  clipboard->setText("before");
  Key("list", Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(clipboard->text(), "before");  // there is nothing to quote
  QTextCursor cursor = Edit()->document()->find("a verse");
  Edit()->setTextCursor(cursor);
  Key("page", Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(clipboard->text(), "quoted: a verse");

  // With nothing selected the menu takes the verse that was pressed on.
  cursor.clearSelection();
  Edit()->setTextCursor(cursor);
  const QPoint on_verse = PlaceOf("2  a").center();
  QContextMenuEvent press(QContextMenuEvent::Mouse, on_verse, Edit()->viewport()->mapToGlobal(on_verse));
  QApplication::sendEvent(Edit()->viewport(), &press);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_TRUE(menu != nullptr && menu->actions().size() >= 2);
  EXPECT_EQ(menu->actions()[1]->text(), "Copy with &Reference");
  menu->actions()[1]->trigger();
  menu->close();
  EXPECT_EQ(clipboard->text(), "quoted: 2  a verse of some length");
}

TEST_F(Page, TellsTheControlWhatIsSelectedAndTakesNoLetters) {
  Do([this] { window->page.Text = "1   In the beginning\r\n2   And the earth"; });
  Edit()->selectAll();
  Do([] {});
  EXPECT_EQ(window->page.SelLength, 39);  // the line end is two
  QTest::keyClicks(Edit(), "x");
  EXPECT_EQ(window->page.Text, "1   In the beginning\r\n2   And the earth");
  Do([this] {
    window->page.SelStart = 22;
    window->page.SelLength = 1;
  });
  EXPECT_EQ(Edit()->textCursor().selectedText(), "2");
}

// What the search needs in a verse takes no part in what is seen and copied, and moves neither marks nor the
// selection.
TEST_F(Page, HidesTheBlanksThatWordsNeed) {
  const std::string text = "1   ( Behold) Alas— \" woe       \r\n2   \" Blessed\"       \r\n";
  Do([&] {
    window->page.Text = text;
    Mark("Blessed");
    window->page.SelStart = 5;  // a blank
    window->page.SelLength = 8;
  });
  EXPECT_EQ(Edit()->toPlainText(), "1   (Behold) Alas—\"woe\n2   \"Blessed\"\n");
  const auto mark = Edit()->document()->findBlockByNumber(1).layout()->formats().last();
  EXPECT_EQ(std::pair(mark.start, mark.length), std::pair(5, 2));
  EXPECT_EQ(Edit()->textCursor().selectedText(), "Behold)");
  Edit()->setTextCursor(Edit()->textCursor());
  Do([] {});
  EXPECT_EQ(window->page.SelStart, 5);
  Edit()->setTextCursor(Edit()->document()->find("woe"));
  Key("page", Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "woe");
  Do([] {});
  EXPECT_EQ(window->page.SelStart, 22);
  EXPECT_EQ(window->page.Text, text);
}

// Every third character is beyond U+FFFF, every fifth is a line end.
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
      if (text[byte] != '\n') {
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
  // Five characters and two line ends, nine by Qt's count, are replaced by two characters and one line end.
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
    TextPositions positions;
    positions.Read(window->sheet.Text());
    const auto start = static_cast<std::size_t>(window->sheet.SelStart());
    ASSERT_EQ(positions.ToQt(start), Edit()->textCursor().selectionStart());
    ASSERT_EQ(positions.ToQt(start + static_cast<std::size_t>(window->sheet.SelLength())),
              Edit()->textCursor().selectionEnd());
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
  const std::function<void()> edits[] = {[&] { QTest::keyClick(Edit(), Qt::Key_Return); },
                                         [&] { QTest::keyClick(Edit(), Qt::Key_Backspace); },
                                         [&] { Edit()->undo(); },
                                         [&] { Edit()->redo(); },
                                         [&] { Edit()->insertPlainText(QString::fromUtf8(OddText(7))); },
                                         [&] { QTest::keyClicks(Edit(), "word "); }};
  for (int i = 0; i < 400; ++i) {
    QTextCursor cursor = Edit()->textCursor();
    cursor.setPosition(somewhere());
    if (up_to(2) == 0) cursor.setPosition(somewhere(), QTextCursor::KeepAnchor);
    Edit()->setTextCursor(cursor);
    edits[up_to(6)]();
    ASSERT_NO_FATAL_FAILURE(ExpectAlike()) << "after edit " << i;
  }
  Edit()->selectAll();
  QTest::keyClick(Edit(), Qt::Key_Delete);
  ExpectAlike();
  EXPECT_EQ(window->sheet.Text, "");
  Edit()->undo();
  ExpectAlike();
}

TEST_F(Sheet, MovesItsColoursWithWhatIsTypedAheadOfThem) {
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

// The whole program on texts in which each version has verses of its own length. The second one lacks
// verse 20.
class Desk : public testing::Test {
 protected:
  Desk() {
    for (const std::string version : {"KJV", "NEW"}) {
      std::string book;
      for (int chapter = 1; chapter <= 3; ++chapter) {
        book += "Chapter " + std::to_string(chapter) + "\r\n";
        for (int verse = 1; verse <= 60; ++verse) {
          if (version == "NEW" && verse == 20) continue;
          book += std::to_string(verse) + "   " + version + " " + std::to_string(chapter);
          for (int word = 0; word < (version == "NEW" ? 40 : 3 * verse); ++word) book += " word";
          book += "\r\n";
        }
      }
      for (const char* name : {"Genesis", "John"}) folder.Write(version + "/" + name + ".txt", book);
    }
    folder.Write("bookschap.txt", "\"Genesis\",3\r\n\"John\",3\r\n");
    EXPECT_TRUE(desktop.Start());
    EXPECT_TRUE(QTest::qWaitForWindowActive(Find("Form1")));
  }

  static QWidget* Find(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == name) return window;
      if (auto* const widget = window->findChild<QWidget*>(name)) return widget;
    }
    throw std::runtime_error(name);
  }
  static void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, held);
  }
  static void Type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }

  forms::Window& Form() { return *desktop.Program().windows.All().front(); }
  VersePage& Shown(const char* page) { return dynamic_cast<VersePage&>(*Form().Find(page)->AttachedView()); }
  std::string Place() {
    return dynamic_cast<forms::Label&>(*Form().Find("lblbk")).Caption() + " " +
           dynamic_cast<forms::Label&>(*Form().Find("lblc")).Caption();
  }
  void GoTo(const char* place) {
    Find("lst")->setFocus();
    for (const char* letter = place; *letter != '\0'; ++letter) Type(std::string(1, *letter).c_str());
    Press(Qt::Key_Return);
  }

  TemporaryFolder folder;
  Desktop desktop{folder.Path()};
};

TEST_F(Desk, GoesToWhatIsTypedAndStaysThereAfterASearch) {
  GoTo("jn 2:30");
  EXPECT_EQ(Place(), "John 2");
  VersePage& page = Shown("rtxt");
  EXPECT_EQ(page.MarkedVerse(), 30);
  const double at_top = page.VerseAtTop();
  EXPECT_TRUE(at_top > 25 && at_top < 30) << at_top;
  GoTo("john 2:99");
  EXPECT_TRUE(Find("go_to")->isVisible());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Find("go_to")->isVisible());

  QTest::mouseClick(Find("Command16"), Qt::LeftButton);
  EXPECT_TRUE(Find("frms")->isVisible());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Find("frms")->isVisible());
  EXPECT_EQ(Place(), "John 2");
  EXPECT_NEAR(page.VerseAtTop(), at_top, 0.1);
  QTest::mouseClick(Find("Command16"), Qt::LeftButton);
  QTest::mouseClick(Find("Command20"), Qt::LeftButton);
  EXPECT_EQ(Place(), "John 1");  // as the button does
}

TEST_F(Desk, ShowsBothVersionsInStep) {
  Press(Qt::Key_B, Qt::ControlModifier);
  VersePage& first = Shown("rtxt");
  VersePage& second = Shown("RTXT2");
  const auto text = [this] { return dynamic_cast<forms::RichTextBox&>(*Form().Find("RTXT2")).Text(); };
  EXPECT_EQ(text().substr(0, 12), "1   NEW 1 wo");
  for (const double verse : {1.5, 12.0, 19.7, 33.25, 4.0}) {
    first.ScrollToVerse(verse);
    EXPECT_NEAR(second.VerseAtTop(), verse, 0.1);
    second.ScrollToVerse(verse + 2);
    EXPECT_NEAR(first.VerseAtTop(), verse + 2, 0.1);
  }
  first.ScrollToVerse(20.5);
  EXPECT_NEAR(second.VerseAtTop(), 21, 0.05);

  GoTo("john 3:40");
  EXPECT_EQ(text().substr(0, 12), "1   NEW 3 wo");
  EXPECT_EQ(second.MarkedVerse(), 40);
  EXPECT_NEAR(second.VerseAtTop(), first.VerseAtTop(), 0.1);
  Press(Qt::Key_B, Qt::ControlModifier);
  EXPECT_FALSE(Find("RTXT2")->isVisible());
}

}  // namespace
}  // namespace lectern::desktop
