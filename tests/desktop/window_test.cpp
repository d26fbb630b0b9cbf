#include <QAbstractScrollArea>
#include <QAccessible>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "tests/desktop/stage.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {
namespace {

TEST_F(Stage, EveryKindOfControlInReachHasAWidget) {
  for (forms::Control* control : window->Controls()) {
    if (control->GetKind() == forms::Kind::kMenu || control->GetKind() == forms::Kind::kTimer) continue;
    const QString name = ToQString(control->FullName());
    const bool is_seen = control->IsShown() && control != &window->far_away;
    const auto* const widget = view->Frame()->findChild<QWidget*>(name);
    EXPECT_EQ(widget != nullptr && widget->isVisible(), is_seen) << name.toStdString();
  }
  EXPECT_EQ(view->Face().size(), QSize(790, 600));
  EXPECT_EQ(view->Frame()->height(), 600 + Find<QMenuBar>("")->height());
}

TEST_F(Stage, TheTitleBarSaysTheTitleAndAWindowThatIsAskedForComesBack) {
  EXPECT_EQ(view->Frame()->windowTitle(), ToQString(window->Caption));
  Do([this] { window->Title = "*Ruth - Sample"; });
  EXPECT_EQ(view->Frame()->windowTitle(), "*Ruth - Sample");
  view->Frame()->setWindowState(Qt::WindowMinimized);
  Do([] {});
  EXPECT_TRUE(view->Frame()->isMinimized());
  Do([this] { window->BringToFront(); });
  EXPECT_FALSE(view->Frame()->isMinimized());
}

TEST_F(Stage, AScreenReaderHearsNamesAndCanPressAPicture) {
  const auto read = [this](const char* name) { return QAccessible::queryAccessibleInterface(Find(name)); };
  // A name of its own goes before a caption that says little.
  EXPECT_EQ(read("ss_command")->text(QAccessible::Name), "Go deeper");
  EXPECT_EQ(read("search")->text(QAccessible::Name), "Search with a long text");
  EXPECT_EQ(read("option")->role(), QAccessible::RadioButton);
  EXPECT_EQ(read("clickable_image")->role(), QAccessible::Button);
  read("clickable_image")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(Log(), "clickable_image click");
  // What it does at other controls counts as a click or as typing too.
  read("bare_option")->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(window->bare_option.Value);
  read("list")->child(1)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(window->list.SelectedIndex(), 1);
  read("line_box")->setText(QAccessible::Value, "spoken");
  EXPECT_EQ(window->line_box.Text, "spoken");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(view->Frame())->role(), QAccessible::Window);
}

TEST_F(Stage, ThePanelShownLastLiesOnTopAndIsFilledWhenItIsFirstSeen) {
  EXPECT_EQ(view->Frame()->findChild<QWidget*>("cancel"), nullptr);
  const QPoint in_panel(400, 300);  // over the page, which was made behind the panel
  EXPECT_FALSE(Find("page")->isHidden());
  Do([this] { window->panel.Visible = true; });
  const QWidget* const on_top = view->Face().childAt(in_panel);
  EXPECT_TRUE(on_top == Find("panel") || Find("panel")->isAncestorOf(on_top));
  // A label that comes into sight meanwhile stays below.
  Do([this] { window->option_text.Visible = false; });
  Do([this] {
    window->option_text.Left = 310 * forms::kTwipsPerPixel;
    window->option_text.Top = 300 * forms::kTwipsPerPixel;
    window->option_text.Visible = true;
  });
  EXPECT_NE(view->Face().childAt(320, 310), Find("option_text"));
}

TEST_F(Stage, WhatStoodForAMomentNeverShows) {
  auto* const edit = Find<QLineEdit>("line_box");
  int changes = 0;
  QObject::connect(edit, &QLineEdit::textChanged, [&changes] { ++changes; });
  Do([this] {
    window->line_box.Text = "";
    window->line_box.Text = "1";
    window->label.Caption = "";
  });
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(edit->text(), "1");
  EXPECT_EQ(Find<QLabel>("label")->text(), "");
}

TEST_F(Stage, AFrameThatFillsTheScreenStartsAtItsEdge) {
  Do([this] {
    window->Width = 900 * forms::kTwipsPerPixel;  // the screen has 800
    window->Left = 15 * forms::kTwipsPerPixel;
    window->Top = 25 * forms::kTwipsPerPixel;
  });
  EXPECT_EQ(view->Frame()->pos(), QPoint(0, 25));
}

TEST_F(Stage, AFailureIsReportedInABoxWithASign) {
  bool has_sign = false;
  QTimer::singleShot(0, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    has_sign = box->icon() == QMessageBox::Critical && !box->iconPixmap().isNull();
    box->accept();
  });
  platform.Report(base::RunTimeError(base::ErrorNumber::kDiskFull));
  EXPECT_TRUE(has_sign);
}

// Options are one stop; the arrows go through them.
TEST_F(Stage, TheKeyboardGoesThroughTheColumnsLineByLine) {
  Find("line_box")->setFocus();
  std::string order;
  for (int i = 0; i < 14; ++i) {
    order += FocusName() + " ";
    QTest::keyClick(view->Frame()->focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order,
            "line_box page_box command search option combo bar canvas follower list folders files drives "
            "clickable_image ");
}

TEST_F(Stage, FocusMovesBothWays) {
  Find("line_box")->setFocus();
  EXPECT_EQ(window->Focus(), &window->line_box);
  Find("list")->setFocus();
  EXPECT_EQ(Log(), "line_box left");
  // Into a panel that is shown in the same event.
  Do([this] {
    window->panel.Visible = true;
    window->in_panel.SetFocus();
  });
  EXPECT_EQ(view->Frame()->focusWidget(), Find("in_panel"));
  Do([this] { window->panel.Visible = false; });
  EXPECT_EQ(window->Focus(), &window->list);
}

TEST_F(Stage, APanelGivesTheFocusBackWhereItWas) {
  window->search.Click = [this] { window->panel.Visible = true; };
  window->cancel.Click = [this] { window->panel.Visible = false; };
  const auto came_back_to = [this](const char* name) {
    EXPECT_EQ(window->Focus(), &window->in_panel)
        << "it goes to the first control, not to the button that closes";
    QTest::keyClick(view->Frame()->focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(FocusName() + " " + window->Focus()->Name(), name + (" " + std::string(name)));
  };
  Find("list")->setFocus();
  Key("list", Qt::Key_S, Qt::AltModifier);
  came_back_to("list");
  Click("search");  // a button that was pressed by the mouse was only on the way
  came_back_to("list");
  Find("search")->setFocus(Qt::TabFocusReason);
  Key("search", Qt::Key_Space);
  came_back_to("search");

  // Where it was is not there any more; where the reader went meanwhile counts.
  Find("line_box")->setFocus();
  Key("line_box", Qt::Key_S, Qt::AltModifier);
  Do([this] { window->line_box.Enabled = false; });
  Key("in_panel", Qt::Key_Escape);
  EXPECT_EQ(window->Focus(), &window->page);
  Click("search");
  Find("list")->setFocus();
  Key("list", Qt::Key_Escape);
  EXPECT_EQ(window->Focus(), &window->list);
}

TEST_F(Stage, ABarIsSteppedByItsKeysFromEverywhere) {
  for (const char* name :
       {"line_box", "page_box", "list", "page", "sheet", "combo", "search", "option", "bar"}) {
    Find(name)->setFocus();
    Log();
    EXPECT_EQ(Key(name, Qt::Key_PageDown, Qt::ControlModifier), "bar 2") << name;
    EXPECT_EQ(Key(name, Qt::Key_PageUp, Qt::ControlModifier), "bar 1") << name;
    EXPECT_EQ(Key(name, Qt::Key_PageUp, Qt::ControlModifier), "") << name;
  }
}

TEST_F(Stage, TheFocusGoesIntoAPanelWhoseButtonIsLockedWhileItIsOpen) {
  window->command.Click = [this] {
    window->panel.Visible = true;
    window->command.Enabled = false;
  };
  Find("command")->setFocus();
  Key("command", Qt::Key_Space);
  EXPECT_EQ(window->Focus(), &window->in_panel);
  Key("in_panel", Qt::Key_F6);
  EXPECT_EQ(window->Focus(), &window->page);
  Key("page", Qt::Key_F6);
  EXPECT_EQ(window->Focus(), &window->in_panel);
}

TEST_F(Stage, EnterAndEscapePressTheButtonsMeantForThem) {
  EXPECT_EQ(Key("line_box", Qt::Key_Return), "command click");
  EXPECT_EQ(Key("search", Qt::Key_Return), "search click");
  EXPECT_EQ(Key("page_box", Qt::Key_Return), "");  // writes a line
  EXPECT_EQ(window->page_box.Text, "\r\ntwo\r\nlines");
  QTest::keyClick(view->Frame(), Qt::Key_Escape);
  EXPECT_EQ(Log(), "");
  Do([this] { window->panel.Visible = true; });
  QTest::keyClick(view->Frame(), Qt::Key_Escape);
  EXPECT_EQ(Log(), "cancel click");
}

TEST_F(Stage, AButtonComesBeforeAMenuWithTheSameLetter) {
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Key("sheet", Qt::Key_S, Qt::AltModifier), "search click");
  EXPECT_EQ(window->sheet.Text, "Note");
  EXPECT_EQ(FocusName(), "search");
  Do([this] { window->search.Enabled = false; });
  EXPECT_FALSE(view->HasAccessKey(Qt::Key_S));  // now it is the menu's
}

TEST_F(Stage, MenusShowTheirStateAndPress) {
  auto* const mark = view->Frame()->findChild<QAction*>("mark");
  EXPECT_TRUE(mark->isChecked());
  mark->trigger();
  EXPECT_EQ(Log(), "mark click");
  EXPECT_TRUE(mark->isChecked());  // the handler left it as it was
  Do([this] { window->mark.Checked = false; });
  EXPECT_FALSE(mark->isChecked());
  QTest::keyClick(view->Frame(), Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Log(), "open click");
}

TEST_F(Stage, AnEntryThatMarksNoLetterGetsOneThatIsFree) {
  const auto text = [this](const char* name) { return view->Frame()->findChild<QAction*>(name)->text(); };
  EXPECT_EQ(text("stories"), "Codex &Stories");
  EXPECT_EQ(text("flood"), "&Flood");
  EXPECT_EQ(text("fall"), "F&all");
  Do([this] { window->flood.Caption = "No rain"; });
  EXPECT_EQ(text("flood"), "No rain");
}

TEST_F(Stage, NothingIsDeliveredWhileAHandlerIsAtWork) {
  Do([this] {
    // As from the loop of a modal box.
    Click("search");
    window->timer.Enabled = true;
    QTest::qWait(20);
    EXPECT_EQ(Log(), "");
  });
  QTest::qWait(20);
  EXPECT_TRUE(Log().starts_with("tick"));
}

TEST_F(Stage, TicksThatFellDueTogetherAreOne) {
  Do([this] {
    window->timer.Interval = 300;
    window->timer.Enabled = true;
  });
  Do([] { QTest::qSleep(1000); });  // three fell due, and the next is far off
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  EXPECT_EQ(Log(), "tick");
}

TEST_F(Stage, AWindowIsClosedByTheProgramAlsoInItsOwnCloseBox) {
  int asked = 0;
  close = [&asked] { ++asked; };
  view->Frame()->close();
  EXPECT_EQ(asked, 0);  // the widgets are still in use
  QCoreApplication::processEvents();
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(view->Frame()->isVisible());
  Do([this] { window->label.Caption = "not shown any more"; });
  close = [this] {
    window->label.Caption = "nor this";
    LetGo();
  };
  Find("canvas")->setFocus(Qt::TabFocusReason);
  // Not while a loop runs inside a widget's event, as in a drag.
  QEventLoop outer;
  QTimer::singleShot(0, [&] {
    QEventLoop drag;
    view->Frame()->close();
    view->Frame()->close();  // pressed twice
    QTimer::singleShot(50, &drag, &QEventLoop::quit);
    drag.exec();
    EXPECT_NE(window, nullptr);
    outer.quit();
  });
  outer.exec();
  EXPECT_TRUE(QTest::qWaitFor([this] { return window == nullptr; }));
  EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST(Colours, TextIsLightenedOnADarkGroundOnly) {
  const QColor blue(0, 0, 255);
  EXPECT_EQ(Legible(blue, Qt::white), blue);
  const QColor on_dark = Legible(blue, QColor(30, 30, 30));
  EXPECT_GT(on_dark.lightness(), blue.lightness());
  EXPECT_EQ(Legible(QColor(1, 2, 3), QColor(1, 2, 3)), QColor(1, 2, 3));  // meant to vanish
  EXPECT_EQ(TextOn(QColor(255, 255, 0)), QColor(Qt::black));
  EXPECT_EQ(ToColor(forms::kWindowBackground, QPalette(Qt::black, Qt::white, Qt::white, Qt::white, Qt::white,
                                                       Qt::black, Qt::white, Qt::yellow, Qt::gray)),
            QColor(Qt::yellow));
}

}  // namespace
}  // namespace lectern::desktop
