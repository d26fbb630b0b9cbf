#include <gtest/gtest.h>

#include "tests/kit/test_window.h"
#include "ui/small_windows.h"

namespace lectern {
namespace {

// A desktop whose printer looks at the window that it is given.
class LookingPrinter : public headless::HeadlessPlatform {
 public:
  using HeadlessPlatform::HeadlessPlatform;
  std::function<void(forms::Window&)> look;

  void PrintForm(forms::Window& window) override {
    if (look) look(window);
    HeadlessPlatform::PrintForm(window);
  }
};

struct Printing : testing::Test {
  TemporaryFolder folder;
  std::vector<std::string> events;
  LookingPrinter platform{[this](const std::string& line) { events.push_back(line); }};
  files::FileSystem files{folder.Path()};
  forms::Services services{platform, files};

  static forms::Control& In(const forms::Window& window, const char* name) { return *window.Find(name); }
};

TEST_F(Printing, PutsThePageOnPaperWithoutItsButtonsAndWithRoomForMoreLines) {
  ui::Form2 page(services);
  page.Form_Load();
  page.Visible = true;
  EXPECT_EQ(page.Left, (15360 - 9390) / 2.0);
  EXPECT_EQ(page.Top, (11520 - 7050) / 2.0);
  EXPECT_EQ(page.ClientWidth(), 9270);
  EXPECT_EQ(page.ClientHeight(), 6645);
  auto& text = dynamic_cast<forms::PlacedControl&>(In(page, "Text1"));
  for (const bool has_printer : {true, false}) {
    platform.has_printer = has_printer;
    int looks = 0;
    platform.look = [&](forms::Window& window) {
      ++looks;
      EXPECT_FALSE(In(window, "Command1").Visible);
      EXPECT_FALSE(In(window, "Command2").Visible);
      EXPECT_EQ(window.ClientHeight(), 14000 - 405);
      EXPECT_EQ(text.Height, 5775 + 7000);
    };
    In(page, "Command1").PersonClicks();
    EXPECT_EQ(looks, 1);
    EXPECT_TRUE(In(page, "Command1").Visible);
    EXPECT_EQ(text.Height, 5775);
    EXPECT_EQ(page.Height, 7050);
  }
  EXPECT_EQ(events, std::vector<std::string>{"print Form2 618x906"});
}

TEST_F(Printing, ShowsAPictureInAWindowOfItsSizeAndPrintsItButtonAndAll) {
  ui::Form5 form(services);
  auto& image = dynamic_cast<forms::Image&>(In(form, "Image1"));
  auto& button = dynamic_cast<forms::PlacedControl&>(In(form, "Command1"));
  form.picture.PrintPaintPicture(forms::Picture(forms::Bitmap(533, 363)));
  EXPECT_TRUE(form.Visible);
  EXPECT_EQ(image.Picture().Width(), 533);
  // ODDITY(print-picture-cut): the frame is part of the window's size, not of the picture's.
  EXPECT_EQ(form.Width, 533 * 15);
  EXPECT_EQ(form.ClientWidth(), 533 * 15 - 120);
  EXPECT_EQ(form.ClientHeight(), 363 * 15 - 405);
  EXPECT_EQ(form.Left, (15360 - 533 * 15) / 2.0);
  EXPECT_EQ(form.Top, (11520 - 363 * 15) / 2.0);
  EXPECT_EQ(button.Left, (533 * 15 - button.Width) / 2);

  button.PersonClicks();
  platform.has_printer = true;
  // ODDITY(print-button-on-picture)
  platform.look = [&](forms::Window&) { EXPECT_TRUE(button.Visible); };
  button.PersonClicks();
  EXPECT_EQ(events, (std::vector<std::string>{"message \"Printer not found. Make sure that your printer is "
                                              "connected and turned on and ty again.\" \"Lectern 2\"",
                                              "print Form5 525x336"}));
  EXPECT_TRUE(form.Visible);

  form.picture.PrintPaintPicture({});
  EXPECT_FALSE(image.Picture());
  EXPECT_EQ(form.Width, 533 * 15);
}

}  // namespace
}  // namespace lectern
