// What holds for every window at once.
#include <gtest/gtest.h>
#include <set>

#include "core/text/letter_case.h"
#include "tests/unit/test_window.h"
#include "ui/program.h"

namespace lectern {
namespace {

TEST(Windows, NameEachControlOnce) {
  TestWindow test;
  ui::Program program({test.platform, test.files});
  program.Start();
  for (const char* name : {"Form1"}) {
    std::set<std::string> names;
    for (const forms::Control* control : program.Touch(name)->Controls()) {
      EXPECT_TRUE(names.insert(text::Lower(control->FullName())).second) << control->FullName();
    }
    EXPECT_GT(names.size(), 30U);
  }
}

}  // namespace
}  // namespace lectern
