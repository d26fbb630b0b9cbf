// Every entry of the story menu opens a chapter that its book has, in both versions, and reads from its first
// verse on.
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

#include "forms/label.h"
#include "forms/menu.h"
#include "forms/rich_text_box.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

TEST(Stories, OpenChaptersThatAreThere) {
  const char* const data = std::getenv("LECTERN_REAL_DATA");
  headless::Driver driver(data == nullptr ? "" : data,
                          [](const std::string& line) { ADD_FAILURE() << line; });
  driver.Execute("start");
  forms::Window& form = *driver.Program().Touch("Form1");
  const auto& pane = dynamic_cast<forms::RichTextBox&>(*form.Find("rtxt"));
  int opened = 0;
  for (const char* version : {"optk", "optn"}) {
    driver.Execute("click Form1." + std::string(version));
    for (const forms::Control* submenu : dynamic_cast<forms::Menu&>(*form.Find("dd1")).Children()) {
      for (const forms::Control* entry : dynamic_cast<const forms::Menu&>(*submenu).Children()) {
        // The last verse of the canon alone: a chapter that is not there would leave its own book's.
        driver.Execute("click Form1.lst \"Revelation\"");
        driver.Execute("scroll Form1.scr 22");
        const std::string before = pane.Text;
        driver.Execute("click Form1." + entry->Name());
        EXPECT_TRUE(pane.Text().starts_with("1   ")) << entry->Name() << ": " << pane.Text();
        EXPECT_NE(pane.Text(), before) << entry->Name();
        ++opened;
      }
    }
  }
  EXPECT_EQ(opened, 70);
}

}  // namespace
}  // namespace lectern
