#include "search/trivia.h"

#include <gtest/gtest.h>

#include "tests/kit/test_window.h"
#include "ui/menus.h"
#include "ui/panels.h"

namespace lectern {
namespace {

// The game with a file of numbered questions and a history of numbers asked.
struct Game {
  Game(int questions, int asked) {
    std::string records;
    for (int i = 1; i <= questions; ++i) records += "\"Q" + std::to_string(i) + "\",\"A\"\r\n";
    test.folder.Write("codex.trv", records);
    for (int i = 1; i <= asked; ++i) history.AddItem(std::to_string(i));
  }

  void Ask(double random) {
    test.platform.random_numbers = {random};
    test.form.Find("Command29")->PersonClicks();
  }

  TestWindow test;
  ui::Panels panels{test.form};
  reader::ToolButtons tools{panels.Picture6};
  ui::Menus menus{test.form};
  reader::Reader reader{test.form, panels.frms, panels.Picture1, panels.Frame1};
  search::Trivia trivia{reader, panels.Picture17, panels.picp, tools, menus.cc4};
  forms::ListBox& history{dynamic_cast<forms::ListBox&>(*test.form.Find("List3"))};
};

TEST(Trivia, ForgetsTheOldestOfAHundredQuestions) {
  Game game(400, 99);
  game.Ask(0.75);
  EXPECT_EQ(game.history.ListCount(), 100);
  EXPECT_EQ(game.history.List(0), "1");
  game.Ask(0.8);
  EXPECT_EQ(game.history.ListCount(), 100);
  EXPECT_EQ(game.history.List(0), "2");
  EXPECT_EQ(game.history.List(98), "299");
  EXPECT_EQ(game.history.List(99), "319");
}

TEST(Trivia, FindsANumberOutOfSixteenBitsAFailure) {
  Game game(40000, 2);
  game.Ask(0.99);
  ASSERT_EQ(game.test.events.size(), 2U);
  EXPECT_NE(game.test.events[0].find("(6 )"), std::string::npos);
  EXPECT_EQ(game.history.ListCount(), 2);
}

}  // namespace
}  // namespace lectern
