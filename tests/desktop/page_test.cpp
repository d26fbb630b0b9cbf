// The page as it is read: its place, its size, and what is taken from it.
#include <QAction>
#include <QClipboard>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QWheelEvent>

#include "tests/desktop/stage.h"

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

  void Mark(const char* words) {
    const int place = window->page.Find(words, 0, forms::kFindNoHighlight);
    window->page.SelStart = place;
    window->page.SelLength = 2;
    window->page.SelColor = forms::kBlue;
    window->page.SelStart = 0;
  }

  QRect PlaceOf(const char* words) { return Edit()->cursorRect(Edit()->document()->find(words)); }

  // The number of the verse whose line lies at the top.
  int TopVerse() {
    return Edit()->cursorForPosition(QPoint(100, 0)).block().text().section(' ', 0, 0).toInt();
  }

  std::string verses;
};

TEST_F(Page, StaysWhereItIsWhenTheSameTextIsShownAgain) {
  Bar()->setValue(700);
  Do([this] { window->page.Show({verses, {}}); });
  EXPECT_EQ(Bar()->value(), 700);
  Do([this] { window->panel.Visible = true; });
  Do([this] { window->panel.Visible = false; });
  EXPECT_EQ(Bar()->value(), 700);
  // Marks of the text before are gone, and new ones show.
  Do([this] { Mark("80  a"); });
  Do([this] {
    window->page.Show({verses, {}});
    Mark("1  a");
  });
  EXPECT_EQ(Edit()->document()->lastBlock().previous().layout()->formats().size(), 1);  // the gap
  EXPECT_TRUE(Edit()->viewport()->rect().contains(PlaceOf("1  a")));
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
  EXPECT_TRUE(Edit()->viewport()->rect().contains(PlaceOf("3  a")));
  Do([this] { window->page.Text = verses + "."; });
  EXPECT_LT(PlaceOf("1  a").top(), 30);
}

TEST_F(Page, IsEnlargedFromEverywhereAndKeepsPlaceAndMarks) {
  Do([this] { Mark("42  a"); });
  const double size = Edit()->font().pointSizeF();
  const QFont others = Find("list")->font();
  const int verse = TopVerse();
  EXPECT_GT(verse, 5);
  for (int i = 0; i < 5; ++i) QTest::keyClick(Find("list"), Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_NEAR(Edit()->font().pointSizeF(), size * 1.61, 0.1);
  EXPECT_EQ(TopVerse(), verse);
  EXPECT_EQ(Edit()->document()->find("42  a").block().layout()->formats().last().format.foreground().color(),
            QColor(0, 0, 255));
  EXPECT_EQ(Find("list")->font(), others);
  EXPECT_EQ(window->page.FontSize, 0);  // nothing that would be stored

  Do([this] { window->page.Text = verses + "."; });
  EXPECT_NEAR(Edit()->font().pointSizeF(), size * 1.61, 0.1);
  QTest::keyClick(Find("line_box"), Qt::Key_0, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Edit()->font().pointSizeF(), size);
  for (int i = 0; i < 100; ++i) QTest::keyClick(Edit(), Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_GT(Edit()->font().pointSizeF(), size / 2);

  QWheelEvent turn(QPointF(50, 50), Edit()->viewport()->mapToGlobal(QPointF(50, 50)), {}, QPoint(0, 120),
                   Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
  const double smallest = Edit()->font().pointSizeF();
  QApplication::sendEvent(Edit()->viewport(), &turn);
  EXPECT_NEAR(Edit()->font().pointSizeF(), smallest * 1.1, 0.01);
}

TEST_F(Page, IsQuotedByKeyAndByMenu) {
  QClipboard* const clipboard = QApplication::clipboard();
  clipboard->setText("before");
  QTest::keyClick(Find("list"), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(clipboard->text(), "before");  // there is nothing to quote
  QTextCursor cursor = Edit()->document()->find("a verse");
  Edit()->setTextCursor(cursor);
  QTest::keyClick(Edit(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(clipboard->text(), "quoted: a verse");

  // With nothing selected the menu takes the verse that was pressed on.
  cursor.clearSelection();
  Edit()->setTextCursor(cursor);
  const QPoint on_verse = PlaceOf("2  a").center();
  QContextMenuEvent press(QContextMenuEvent::Mouse, on_verse, Edit()->viewport()->mapToGlobal(on_verse));
  QApplication::sendEvent(Edit()->viewport(), &press);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  ASSERT_GE(menu->actions().size(), 2);
  EXPECT_EQ(menu->actions()[1]->text(), "Copy with &Reference");
  menu->actions()[1]->trigger();
  menu->close();
  EXPECT_EQ(clipboard->text(), "quoted: 2  a verse of some length");
}

}  // namespace
}  // namespace lectern::desktop
