#include "ui/desktop/layout/reading_order.h"

#include <gtest/gtest.h>

namespace lectern::desktop {
namespace {

using Positions = std::vector<std::size_t>;

TEST(ReadingOrder, GoesLineByLineAndThroughAColumnBeforeItsTallerNeighbour) {
  EXPECT_EQ(ReadingOrder({}), Positions{});
  // Two lines of buttons of different heights.
  EXPECT_EQ(ReadingOrder({{90, 40, 80, 28}, {0, 42, 80, 20}, {90, 0, 80, 28}, {0, 4, 80, 20}}),
            (Positions{3, 2, 1, 0}));
  // Two lines of two buttons beside a list, which stands farther off than they do from one another.
  EXPECT_EQ(
      ReadingOrder({{0, 0, 80, 28}, {0, 40, 80, 28}, {88, 0, 80, 28}, {88, 40, 80, 28}, {184, 0, 80, 68}}),
      (Positions{0, 2, 1, 3, 4}));
  // A list at the right of two fields and a button, and a foot below both.
  EXPECT_EQ(
      ReadingOrder({{0, 120, 200, 28}, {100, 10, 100, 80}, {0, 0, 90, 20}, {0, 30, 90, 20}, {0, 60, 90, 20}}),
      (Positions{2, 3, 4, 1, 0}));
}

TEST(ReadingOrder, WhatLiesOverOthersComesWhereItBeginsAndDisturbsNoOther) {
  // A panel over two lines of two.
  EXPECT_EQ(
      ReadingOrder({{90, 0, 80, 20}, {0, 0, 80, 20}, {90, 30, 80, 20}, {0, 30, 80, 20}, {40, 10, 90, 30}}),
      (Positions{1, 0, 4, 3, 2}));
  // Twice the same place keeps the order given.
  EXPECT_EQ(ReadingOrder({{0, 0, 10, 10}, {0, 0, 10, 10}}), (Positions{0, 1}));
}

}  // namespace
}  // namespace lectern::desktop
