// The help that is installed: each topic opens under its label, set as it was written, and what it says to
// press is there to be pressed.
#include "tools/make_data/help_topics.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

#include "base/text/characters.h"
#include "forms/rich_text_box.h"
#include "tools/make_data/written_texts.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

const char* const kTitles[] = {"Book marks",  "Search",     "Notes",  "Pictures",
                               "Concordance", "Dictionary", "Trivia", "Paint"};

TEST(HelpTopics, OpenUnderTheirLabelsAsTheyWereWritten) {
  headless::Driver driver(std::getenv("LECTERN_REAL_DATA"), [](const std::string&) {});
  driver.Execute("click Form1.xh2");
  const auto& pane =
      dynamic_cast<const forms::RichTextBox&>(*driver.Program().Touch("Form1")->Find("txthelp"));
  for (int i = 0; i < 8; ++i) {
    driver.Execute("click Form1.lblhp(" + std::to_string(i) + ")");
    const std::string& text = pane.Text;
    EXPECT_TRUE(text.starts_with(std::string(kTitles[i]) + "\r\n")) << text.substr(0, 40);
    EXPECT_NE(text.find("\r\n\r\nGood to know\r\n"), std::string::npos) << kTitles[i];
    EXPECT_EQ(text.find_first_of("#\\{}"), std::string::npos) << kTitles[i];
    EXPECT_EQ(pane.Runs().At(0).size, 16);
    EXPECT_EQ(pane.Runs().At(0).bold, true);
    EXPECT_EQ(pane.Runs().At(text::Length(text) - 1), forms::TextStyle{});
  }
}

// What stands on a control that can be pressed, or over what can be pressed: a frame's heading may be
// several, with blanks between them.
void AddTexts(const forms::Control& control, std::set<std::string>& texts) {
  const forms::PropertyBase* const caption = control.FindProperty("Caption");
  if (caption == nullptr) return;
  std::string rest = std::get<std::string>(caption->Read());
  std::erase(rest, '&');
  for (std::size_t end = 0; !rest.empty(); rest.erase(0, end)) {
    rest.erase(0, rest.find_first_not_of(' '));
    end = std::min(rest.find("  "), rest.size());
    texts.insert(rest.substr(0, end));
  }
}

TEST(HelpTopics, SayWhatIsThereToBePressed) {
  headless::Driver driver(std::getenv("LECTERN_REAL_DATA"), [](const std::string&) {});
  driver.Execute("start");
  std::set<std::string> captions;
  for (const char* name : {"Form1", "Form2", "Form3", "Form4", "Form5"}) {
    for (const forms::Control* control : driver.Program().Touch(name)->Controls())
      AddTexts(*control, captions);
  }
  for (const make_data::WrittenText& topic : make_data::kHelpSources) {
    for (std::size_t at = topic.text.find("**"); at != std::string_view::npos;) {
      const std::size_t end = topic.text.find("**", at + 2);
      const std::string pressed(topic.text.substr(at + 2, end - at - 2));
      EXPECT_TRUE(captions.contains(pressed)) << topic.file << ": " << pressed;
      at = topic.text.find("**", end + 2);
    }
  }
}

TEST(HelpTopics, AreMadeFromTheirMarks) {
  const forms::RichText page = forms::ReadRtf(
      make_data::RichTextOf("# Title\n\nOne *two*\nthree: \\* or {\n\n## Part\n* first **Go**\nmore\n* é"));
  EXPECT_EQ(page.text, "Title\r\nOne two three: * or {\r\n\r\nPart\r\n•  first Go more\r\n•  é\r\n");
  const auto style = [&page](const std::string& word) {
    return page.runs.At(text::Length(page.text.substr(0, page.text.find(word))));
  };
  EXPECT_EQ(style("two").italic, true);
  EXPECT_EQ(style("three"), forms::TextStyle{});
  EXPECT_EQ(style("Part").size, 12);
  EXPECT_EQ(style("Go").bold, true);
  EXPECT_EQ(style("more"), forms::TextStyle{});
}

}  // namespace
}  // namespace lectern
