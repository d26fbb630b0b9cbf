#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "tests/desktop/stage.h"
#include "ui/desktop/views/bench_view.h"

namespace lectern::desktop {
namespace {

// A window with tools that lie off it: a button, and a panel that is hidden besides.
class Bench : public Stage {
 protected:
  Bench() {
    constexpr double kFarAway = 2000 * forms::kTwipsPerPixel;
    for (forms::PlacedControl* control : std::initializer_list<forms::PlacedControl*>{&maker, &tools}) {
      control->AnchorTo(forms::Anchor::kStorage);
      control->Left = kFarAway;
      control->Top = -40 * forms::kTwipsPerPixel;
      control->Width = 300 * forms::kTwipsPerPixel;
      control->Height = 200 * forms::kTwipsPerPixel;
    }
    for (forms::PlacedControl* control : std::initializer_list<forms::PlacedControl*>{&name, &close_tools}) {
      control->Left = 16 * forms::kTwipsPerPixel;
      control->Width = 100 * forms::kTwipsPerPixel;
      control->Height = 28 * forms::kTwipsPerPixel;
    }
    name.Top = 40 * forms::kTwipsPerPixel;
    close_tools.Top = 80 * forms::kTwipsPerPixel;
    maker.Click = [this] { window->log.emplace_back("made"); };
    close_tools.Click = [this] { tools.Visible = false; };
    events.settled = [this] {
      view->Settle();
      if (bench) bench->Settle();
    };
  }

  QWidget* OnBench(const char* control) {
    auto* const widget = bench->Frame().findChild<QWidget*>(control);
    EXPECT_NE(widget, nullptr) << control;
    return widget;
  }
  void ClickOnBench(const char* control) { QTest::mouseClick(OnBench(control), Qt::LeftButton); }

  forms::CommandButton maker{*window, "maker", {.caption = "make"}};
  forms::Frame tools{*window, "tools", {.caption = "tools", .visible = false}};
  forms::TextBox name{tools, "name", {.name = "Name"}};
  forms::CommandButton close_tools{tools, "close_tools", {.caption = "Close"}};
  std::unique_ptr<BenchView> bench;
};

TEST_F(Bench, ShowsWhatLiesOffTheWindowForTheMouse) {
  EXPECT_EQ(view->Frame()->findChild<QWidget*>("tools"), nullptr);
  bench = std::make_unique<BenchView>(*window, *view, std::vector<std::string>{"maker", "tools"});
  EXPECT_TRUE(bench->Frame().isVisible());
  EXPECT_TRUE(tools.Visible);
  bench->Frame().resize(900, 700);
  EXPECT_EQ(OnBench("tools")->geometry(), OnBench("tools")->parentWidget()->rect());
  EXPECT_GT(OnBench("tools")->width(), 800);
  ClickOnBench("maker");
  EXPECT_EQ(Log(), "made");

  // What is typed reaches the control, and what the program writes the box.
  QTest::keyClicks(OnBench("name"), "adam1");
  EXPECT_EQ(name.Text, "adam1");
  Do([this] { name.Text = "noah"; });
  EXPECT_EQ(qobject_cast<QLineEdit*>(OnBench("name"))->text(), "noah");

  // A panel that its own button closed is opened again by the one in its place.
  const auto buttons = bench->Frame().findChildren<QPushButton*>();
  const auto found = std::find_if(buttons.begin(), buttons.end(),
                                  [](const QPushButton* button) { return button->text() == "Open tools"; });
  ASSERT_NE(found, buttons.end());
  QPushButton* const opener = *found;
  EXPECT_FALSE(opener->isVisible()) << "it would take the focus where nobody sees it";
  ClickOnBench("close_tools");
  EXPECT_FALSE(OnBench("tools")->isVisible());
  EXPECT_EQ(bench->Frame().focusWidget(), opener);
  QTest::keyClick(opener, Qt::Key_Space);
  EXPECT_TRUE(OnBench("tools")->isVisible());

  // The window itself is as it was.
  EXPECT_EQ(view->Frame()->findChild<QWidget*>("tools"), nullptr);
  EXPECT_EQ(tools.Left, 2000 * forms::kTwipsPerPixel);
}

}  // namespace
}  // namespace lectern::desktop
