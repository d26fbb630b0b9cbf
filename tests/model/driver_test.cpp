// What the program gets of the world without a screen.
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>

#include "tests/kit/test_window.h"

namespace lectern {
namespace {

TEST(Today, IsTheDayWhereTheReaderIs) {
  // Two places that never have the same day.
  int days[2] = {};
  const char* const zones[2] = {"EAST-14", "WEST+12"};
  for (int i = 0; i < 2; ++i) {
    ::setenv("TZ", zones[i], 1);
    ::tzset();
    days[i] = TestWindow().platform.Today().day;
  }
  ::unsetenv("TZ");
  ::tzset();
  EXPECT_NE(days[0], days[1]);
}

}  // namespace
}  // namespace lectern
