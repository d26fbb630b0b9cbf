#include <gtest/gtest.h>

#include "forms/bars_and_timer.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/lists.h"
#include "forms/text_controls.h"
#include "tests/kit/test_window.h"

namespace lectern::forms {
namespace {

static_assert(!std::is_copy_constructible_v<Property<int>>);
static_assert(!std::is_copy_constructible_v<RuledProperty<std::string>>);

TEST(Property, RunsItsChangeInsideTheWriteAndOnlyForANewValue) {
  TestWindow test;
  Label first(test.form, "first");
  Label second(test.form, "second", {.caption = "design"});
  std::string seen;
  first.Change = [&] {
    seen += "[" + first.Caption();
    second.Caption = first.Caption;  // writes the value, and runs the other's handler before it goes on
    seen += "]";
  };
  second.Change = [&] { seen += ">" + second.Caption(); };
  first.Caption = "a";
  first.Caption = "a";
  second.Caption = "a";
  EXPECT_EQ(seen, "[a>a]");
  first.Caption = "";
  EXPECT_EQ(seen, "[a>a][>]");
}

TEST(ListBox, SortsByCharacterCodeOrKeepsTheOrderAndForgetsTheSelectionWithItsItems) {
  TestWindow test;
  ListBox sorted(test.form, "lstc", {.sorted = true});
  ListBox plain(test.form, "lsts");
  for (const char* word : {"b", "a", "B", "a b", "É", "a"}) {
    sorted.AddItem(word);
    plain.AddItem(word);
  }
  std::string all;
  for (int i = 0; i < sorted.ListCount(); ++i) all += sorted.List(i) + ",";
  EXPECT_EQ(all, "B,a,a,a b,b,É,");
  EXPECT_EQ(plain.List(2), "B");
  EXPECT_EQ(plain.List(-1), "");
  EXPECT_EQ(plain.List(6), "");

  int clicks = 0;
  sorted.Click = [&] { ++clicks; };
  sorted.PersonPicks(3);
  sorted.AddItem("A");  // in front: the selection stays on its item
  EXPECT_TRUE(sorted.Selected(4));
  sorted.RemoveItem(4);
  EXPECT_EQ(sorted.SelectedIndex(), -1);
  sorted.PersonPicks(-1);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(ErrorOf([&] { sorted.RemoveItem(99); }), 5);
  sorted.PersonPicks(0);
  sorted.Clear();
  EXPECT_FALSE(sorted.Selected(0));
}

TEST(Keys, PressTheDefaultAndTheCancelButtonOfThePanelAroundOrOfTheFrontOne) {
  TestWindow test;
  test.form.Visible = true;
  Frame back(test.form, "back");
  Frame front(test.form, "front", {.visible = false});
  TextBox box(back, "txts");
  CommandButton go(back, "go", {.is_default = true});
  CommandButton close_back(back, "close_back", {.is_cancel = true});
  CommandButton close_front(front, "close_front", {.is_cancel = true});
  std::string pressed;
  go.Click = [&] { pressed += "go "; };
  close_back.Click = [&] { pressed += "close_back "; };
  close_front.Click = [&] { pressed += "close_front "; };
  front.Visible = true;
  box.PersonKeys(kEnterKey);
  box.PersonKeys(kEscapeKey);
  test.form.PressCancelOfFrontPanel();
  go.Enabled = false;
  box.PersonKeys(kEnterKey);
  front.Visible = false;
  test.form.PressCancelOfFrontPanel();
  EXPECT_EQ(pressed, "go close_back close_front close_back ");

  // From below an open panel Escape closes that, and the window only when none is left.
  TextBox below(test.form, "below");
  CommandButton leave(test.form, "leave", {.is_cancel = true});
  leave.Click = [&] { pressed += "leave "; };
  pressed.clear();
  below.PersonKeys(kEscapeKey);
  back.Visible = false;
  below.PersonKeys(kEscapeKey);
  test.form.PressCancelOfFrontPanel();
  EXPECT_EQ(pressed, "close_back leave leave ");
}

}  // namespace
}  // namespace lectern::forms
