// The order of the keyboard, and a face on a screen that is too small for it.
#include <QScrollArea>
#include <QScrollBar>
#include <gtest/gtest.h>

#include "ui/desktop/layout/fitted_face.h"
#include "ui/desktop/layout/places.h"

namespace lectern::desktop {
namespace {

TEST(ReadingOrder, GoesLineByLineAndThroughAColumnBeforeItsTallerNeighbour) {
  const struct {
    std::vector<QRect> places;
    std::vector<std::size_t> order;
  } kCases[] = {
      {{}, {}},
      // Two lines of buttons of different heights.
      {{{90, 40, 80, 28}, {0, 42, 80, 20}, {90, 0, 80, 28}, {0, 4, 80, 20}}, {3, 2, 1, 0}},
      // Two lines of two buttons beside a list, which is farther off than they are from one another.
      {{{0, 0, 80, 28}, {0, 40, 80, 28}, {88, 0, 80, 28}, {88, 40, 80, 28}, {184, 0, 80, 68}},
       {0, 2, 1, 3, 4}},
      // A list at the right of two fields and a button, and a line below both.
      {{{0, 120, 200, 28}, {100, 10, 100, 80}, {0, 0, 90, 20}, {0, 30, 90, 20}, {0, 60, 90, 20}},
       {2, 3, 4, 1, 0}},
      // A panel over two lines of two comes where it begins.
      {{{90, 0, 80, 20}, {0, 0, 80, 20}, {90, 30, 80, 20}, {0, 30, 80, 20}, {40, 10, 90, 30}},
       {1, 0, 4, 3, 2}},
      // Twice the same place.
      {{{0, 0, 10, 10}, {0, 0, 10, 10}}, {0, 1}},
  };
  for (const auto& [places, order] : kCases) EXPECT_EQ(ReadingOrder(places), order);
}

class OnAScreen : public testing::Test {
 protected:
  // A face of 400 by 300 with a margin of 20 around its controls, under a menu bar of 20.
  QSize Place(const QSize& screen) {
    const QSize size = fitted.Place({400, 300}, {20, 20, 360, 260}, 20, screen);
    frame.resize(size);
    frame.show();
    return size;
  }
  QPoint Corner() const { return fitted.Face().mapTo(&frame, QPoint(0, 0)); }

  QWidget frame;
  FittedFace fitted{frame};
};

TEST_F(OnAScreen, AFaceIsShownWholeOrLosesItsMarginFirst) {
  EXPECT_EQ(Place({1000, 1000}), QSize(400, 320));
  EXPECT_EQ(Corner(), QPoint(0, 20));
  EXPECT_EQ(Place({380, 1000}), QSize(380, 320));
  EXPECT_EQ(Corner(), QPoint(-10, 20));  // as much at either side
  EXPECT_EQ(frame.findChild<QScrollArea*>(), nullptr);
}

TEST_F(OnAScreen, AFaceThatIsCutOffIsScrolledToWhatHasTheFocus) {
  QWidget button(&fitted.Face());
  button.setGeometry(300, 250, 80, 28);
  EXPECT_EQ(Place({300, 200}), QSize(300, 200));
  const auto is_seen = [&] {
    return QRect(0, 20, 300, 180).contains(QRect(button.mapTo(&frame, QPoint(0, 0)), button.size()));
  };
  EXPECT_FALSE(is_seen());
  fitted.BringIntoSight(button);
  EXPECT_TRUE(is_seen());
  EXPECT_EQ(fitted.Face().size(), QSize(400, 300));
  // Only too high: as wide as before, and the bar beside it.
  const int bar = frame.findChild<QScrollArea*>()->verticalScrollBar()->sizeHint().width();
  EXPECT_EQ(Place({1000, 200}), QSize(400 + bar, 200));
  EXPECT_EQ(Place({1000, 1000}), QSize(400, 320));
  EXPECT_EQ(Corner(), QPoint(0, 20));
  EXPECT_TRUE(fitted.Face().isVisible());
}

}  // namespace
}  // namespace lectern::desktop
