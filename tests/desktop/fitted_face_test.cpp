#include "ui/desktop/layout/fitted_face.h"

#include <QScrollArea>
#include <QScrollBar>
#include <gtest/gtest.h>

namespace lectern::desktop {
namespace {

class OnAScreen : public testing::Test {
 protected:
  // A face of 400 by 300 with a margin of 20 around its controls, under a menu bar of 20.
  QSize Place(const QSize& room) {
    const QSize size = fitted.Place({400, 300}, {20, 20, 360, 260}, 20, room);
    frame.resize(size);
    frame.show();
    return size;
  }
  QPoint Corner() const { return fitted.Face().mapTo(&frame, QPoint(0, 0)); }

  QWidget frame;
  FittedFace fitted{frame};
};

TEST_F(OnAScreen, AFaceIsShownWholeWhereThereIsRoomAndLosesItsMarginFirst) {
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
  const auto seen = [&] {
    return QRect(QPoint(0, 20), QSize(300, 180))
        .contains(QRect(button.mapTo(&frame, QPoint(0, 0)), button.size()));
  };
  EXPECT_FALSE(seen());
  fitted.BringIntoSight(button);
  EXPECT_TRUE(seen());
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
