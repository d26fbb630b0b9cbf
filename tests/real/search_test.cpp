// For ten words and phrases, what the panel lists for the whole King James text is what the plain scan finds.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "forms/list_box.h"
#include "reader/canon.h"
#include "tests/kit/plain_scan.h"
#include "tests/real/real_data.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

TEST(RealSearch, ListsWhatThePlainScanFinds) {
  constexpr std::size_t kMargin = 7;  // the characters of the caption that sets it at the start
  headless::Driver driver(RealData(), [](const std::string&) {});
  driver.Execute("click Form1.Command16");
  driver.Execute("click Form1.op1");
  const auto& list = dynamic_cast<forms::ListBox&>(*driver.Program().Touch("Form1")->Find("lsts"));
  std::vector<std::string> books;
  for (const std::string_view book : reader::kCanon)
    books.push_back(RealFile("KJV/" + std::string(book) + ".txt"));

  const std::vector<std::pair<std::string, std::string>> searches = {
      {"grace", ""},  {"zion", ""},  {"love", ""},      {"amen", ""},  {"in the beginning", ""},
      {"the", "ark"}, {"", "manna"}, {"faith", "hope"}, {"selah", ""}, {"children of israel", "moses"}};
  for (const auto& [first, second] : searches) {
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < books.size(); ++i) {
      const auto found =
          search::plain::WholeTextTick(books[i], first, second, std::string(reader::kCanon[i]), kMargin);
      expected.insert(expected.end(), found.entries.begin(), found.entries.end());
    }
    driver.Execute("type Form1.txts \"" + first + "\"");
    driver.Execute("type Form1.txts2 \"" + second + "\"");
    driver.Execute("click! Form1.Command22");
    driver.Execute("run");
    std::vector<std::string> listed;
    for (int i = 0; i < list.ListCount(); ++i) listed.push_back(list.List(i));
    EXPECT_EQ(listed, expected) << first << " and " << second;
    EXPECT_EQ(expected.empty(), first.empty());  // with the second box alone every first blank is rejected
  }
}

}  // namespace
}  // namespace lectern
