// The whole program as a screen reader hears it: every window, every panel, and the keeper's bench.
#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>
#include <map>

#include "tests/desktop/stage.h"
#include "ui/desktop/app/desktop.h"
#include "ui/desktop/layout/window_focus.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {
namespace {

class Access : public testing::Test, protected SmallFolder {
 protected:
  Access() { EXPECT_TRUE(desktop.Start()); }

  // Every window with all that can ever come to be seen in it.
  void ShowEverything() {
    for (const char* name : {"Form1", "Form2", "Form3", "Form4", "Form5"}) {
      forms::Window& window = *desktop.Program().Touch(name);
      desktop.GetEvents().Deliver(window, [&window] {
        window.Visible = true;
        for (forms::Control* control : window.Controls()) {
          if (control->GetKind() != forms::Kind::kMenu) control->Visible = true;
        }
      });
    }
  }

  static QAccessibleInterface* Read(const forms::Control& control) {
    const ControlView* const view = SeenViewOf(&control);
    return view == nullptr ? nullptr : QAccessible::queryAccessibleInterface(view->Widget());
  }

  Desktop desktop{folder_.Path(), {"Command12", "Command38", "Frame5", "Frame2"}};
};

// What a person uses a control of that kind as; NoRole for what is only looked at.
QAccessible::Role RoleOf(const forms::Control& control) {
  using forms::Kind;
  static const std::map<Kind, QAccessible::Role> kRoles = {{Kind::kCommandButton, QAccessible::Button},
                                                           {Kind::kSSCommand, QAccessible::Button},
                                                           {Kind::kOptionButton, QAccessible::RadioButton},
                                                           {Kind::kSSOption, QAccessible::RadioButton},
                                                           {Kind::kTextBox, QAccessible::EditableText},
                                                           {Kind::kRichTextBox, QAccessible::EditableText},
                                                           {Kind::kListBox, QAccessible::List},
                                                           {Kind::kFileListBox, QAccessible::List},
                                                           {Kind::kDirListBox, QAccessible::List},
                                                           {Kind::kComboBox, QAccessible::ComboBox},
                                                           {Kind::kDriveListBox, QAccessible::ComboBox},
                                                           {Kind::kHScrollBar, QAccessible::ScrollBar},
                                                           {Kind::kProgressBar, QAccessible::ProgressBar}};
  const auto found = kRoles.find(control.GetKind());
  if (found != kRoles.end()) return found->second;
  const bool is_pressed = control.Click || (control.MouseDown && !control.MouseMove);
  return is_pressed ? QAccessible::Button : QAccessible::NoRole;
}

TEST_F(Access, EveryControlOfEveryWindowHasANameAndTheRoleOfWhatItIs) {
  ShowEverything();
  int checked = 0;
  for (const char* name : {"Form1", "Form2", "Form3", "Form4", "Form5"}) {
    for (const forms::Control* control : desktop.Program().Touch(name)->Controls()) {
      QAccessibleInterface* const read = Read(*control);
      if (read == nullptr || RoleOf(*control) == QAccessible::NoRole) continue;
      ++checked;
      const std::string where = name + ("." + control->FullName());
      EXPECT_EQ(read->role(), RoleOf(*control)) << where;
      EXPECT_FALSE(read->text(QAccessible::Name).trimmed().isEmpty()) << where;
      const QWidget* const widget = SeenViewOf(control)->Widget();
      // One stop for all of them.
      const bool in_options = read->role() == QAccessible::RadioButton;
      const bool in_row = !control->Click && control->Index() > 0 && widget->focusPolicy() == Qt::ClickFocus;
      EXPECT_TRUE(in_options || in_row || (widget->focusPolicy() & Qt::TabFocus) != 0 ||
                  read->role() == QAccessible::ProgressBar)
          << where << " is not reached by the keyboard";
    }
  }
  EXPECT_GT(checked, 150);
}

TEST_F(Access, ThePaletteIsOneStopWhoseColoursTheArrowsGoThrough) {
  forms::Window& window = *desktop.Program().Touch("Form4");
  desktop.GetEvents().Deliver(window, [&window] { window.Visible = true; });
  ASSERT_TRUE(QTest::qWaitForWindowActive(SeenViewOf(window.Find("clr2"))->Widget()->window()));
  const auto colour = [](const forms::Control* control) {
    return dynamic_cast<const forms::PlacedControl&>(*control).BackColor();
  };
  const auto circle = [&](int index) { return colour(window.Find("clrbox", index)); };
  const auto key = [&](Qt::Key pressed) { QTest::keyClick(SeenViewOf(window.Focus())->Widget(), pressed); };
  const forms::Colour first = circle(0);
  ASSERT_NE(first, circle(7));
  SeenViewOf(window.Find("clrboxs", 0))->Widget()->setFocus();
  key(Qt::Key_Space);
  EXPECT_EQ(colour(window.Find("clr2")), first);
  EXPECT_EQ(Read(*window.Find("clrboxs", 0))->text(QAccessible::Name), "black, Colour 1");
  key(Qt::Key_Right);
  key(Qt::Key_Down);
  EXPECT_EQ(window.Focus()->FullName(), "clrboxs(7)");
  key(Qt::Key_Menu);  // as the mouse's right button: the colour in hand goes there
  EXPECT_EQ(circle(7), first);
  key(Qt::Key_Tab);
  EXPECT_EQ(window.Focus()->FullName(), "Command4");
  key(Qt::Key_Backtab);
  EXPECT_EQ(window.Focus()->FullName(), "clrboxs(7)");
}

TEST_F(Access, WhatIsDrawnTwiceIsReadOnce) {
  ShowEverything();
  forms::Window& window = *desktop.Program().Touch("Form1");
  QAccessibleInterface* const panel = Read(*window.Find("frmd"));
  int words = 0;
  for (int i = 0; i < panel->childCount(); ++i) {
    EXPECT_EQ(panel->indexOfChild(panel->child(i)), i);
    words += panel->child(i)->text(QAccessible::Name) == "Word" ? 1 : 0;
  }
  EXPECT_EQ(words, 1);
}

}  // namespace
}  // namespace lectern::desktop
