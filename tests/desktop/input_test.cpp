// What the mouse and the keys do to each kind of control.
#include <QAbstractItemModel>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPaintEvent>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolTip>

#include "tests/desktop/stage.h"

namespace lectern::desktop {
namespace {

TEST_F(Stage, OptionsAreSetByMouseByKeyAndByTheTextBesideThem) {
  EXPECT_EQ(Click("bare_option"), "bare_option click");
  EXPECT_TRUE(window->bare_option.Value);
  EXPECT_FALSE(Find<QRadioButton>("option")->isChecked());
  EXPECT_EQ(Click("bare_option"), "bare_option click");  // counts again, and stays set
  EXPECT_TRUE(Find<QRadioButton>("bare_option")->isChecked());
  Key("bare_option", Qt::Key_Up);
  EXPECT_TRUE(window->option.Value);
  Click("option_text");
  EXPECT_TRUE(window->bare_option.Value);
}

TEST_F(Stage, AListIsPressedAndClickedAlsoWhereItHasNoItem) {
  auto* const list = Find<QListView>("list");
  const QPoint exodus = list->visualRect(list->model()->index(1, 0)).center();
  EXPECT_EQ(Click("list", 20, exodus.y()), "list press, list click");
  EXPECT_EQ(window->list.SelectedIndex(), 1);
  EXPECT_EQ(Click("list", 20, list->viewport()->height() - 3), "list press, list click");
  EXPECT_EQ(window->list.SelectedIndex(), 1);
  Click("list", 20, exodus.y());
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                     exodus);  // its second press is an event of its own
  EXPECT_EQ(Log(), "list dblclick");
}

TEST_F(Stage, KeysMoveThroughAListAndLettersFindTheNextItem) {
  QListView* const list = Find<QListView>("list");
  list->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Log(), "");  // coming by is no click
  const std::pair<Qt::Key, int> moves[] = {
      {Qt::Key_Down, 0}, {Qt::Key_Down, 1}, {Qt::Key_End, 5}, {Qt::Key_L, 2}};
  for (const auto& [key, item] : moves) {
    EXPECT_NE(Key("list", key).find("list click"), std::string::npos);
    EXPECT_EQ(window->list.SelectedIndex(), item);
  }
  EXPECT_EQ(Key("list", Qt::Key_Return), "list key 13, command click");
}

TEST_F(Stage, AListGrowsRowByRowAndIsMadeAnewOnlyWhenItChanged) {
  auto* const list = Find<QListView>("list");
  int resets = 0;
  QObject::connect(list->model(), &QAbstractItemModel::modelReset, [&resets] { ++resets; });
  Do([this] { window->list.AddItem("Acts"); });
  Do([this] { window->list.AddItem("Romans"); });
  EXPECT_EQ(list->model()->rowCount(), 8);
  EXPECT_EQ(resets, 0);
  Do([this] {
    window->list.Clear();
    window->list.AddItem("Jude");
  });
  EXPECT_EQ(resets, 1);
  EXPECT_EQ(list->model()->index(0, 0).data().toString(), "Jude");
  Do([this] { window->list.Select(0); });
  EXPECT_EQ(list->selectionModel()->selectedIndexes().size(), 1);
}

TEST_F(Stage, AScrollBarCountsADragAtItsEndAndStepsByOne) {
  auto* const bar = Find<QScrollBar>("bar");
  bar->setSliderDown(true);
  bar->setSliderPosition(20);
  bar->setSliderPosition(30);
  EXPECT_EQ(Log(), "");
  bar->setSliderDown(false);
  EXPECT_EQ(Log(), "bar 30");
  EXPECT_EQ(Key("bar", Qt::Key_Right), "bar 31");
  bar->triggerAction(QAbstractSlider::SliderPageStepSub);
  EXPECT_EQ(Log(), "bar 30");
  Do([this] { window->bar.Max = 10; });  // the value stays; the thumb is at the end
  EXPECT_EQ(bar->value(), 10);
  EXPECT_EQ(window->bar.Value, 30);
  EXPECT_EQ(Key("bar", Qt::Key_Left), "bar 9");
  // One that follows the thumb counts every position, and shows a person its number from 1 on.
  Log();
  auto* const follower = Find<QScrollBar>("follower");
  follower->setSliderDown(true);
  follower->setSliderPosition(3);
  EXPECT_EQ(QToolTip::text(), "Picture 4");
  follower->setSliderPosition(5);
  follower->setSliderDown(false);
  EXPECT_EQ(Log(), "follower 3, follower 5");
}

TEST_F(Stage, TypingAndPickingInAComboBoxAreTwoThings) {
  auto* const combo = Find<QComboBox>("combo");
  QTest::keyClicks(combo->lineEdit(), "0");
  EXPECT_EQ(window->combo.Text, "100");
  EXPECT_EQ(Log(), "");
  EXPECT_EQ(Key("combo", Qt::Key_Down), "combo click");
  Do([this] { window->combo.Text = "odd"; });
  EXPECT_EQ(combo->currentText(), "odd");
}

// Notes what a widget is asked to paint.
class Painted : public QObject {
 public:
  explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
  QRect area;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) area |= static_cast<const QPaintEvent*>(event)->rect();
    return false;
  }
};

TEST_F(Stage, AFastStrokeIsALineAndNoMoreIsPainted) {
  QWidget* const canvas = Find("canvas");
  QTest::mousePress(canvas, Qt::LeftButton, {}, QPoint(40, 30));
  EXPECT_EQ(window->canvas.Shown().At(40, 30), 0xFF000000U);
  QCoreApplication::processEvents();
  Painted painted(*canvas);
  QTest::mouseMove(canvas, QPoint(100, 30));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !painted.area.isEmpty(); }));
  EXPECT_EQ(painted.area, QRect(37, 26, 68, 9));
  QTest::mouseRelease(canvas, Qt::LeftButton);
  const QImage shot = canvas->grab().toImage();
  EXPECT_EQ(shot.pixelColor(40, 30), QColor(Qt::black));
  EXPECT_EQ(shot.pixelColor(70, 30), QColor(Qt::black));  // between two events
  EXPECT_EQ(shot.pixelColor(70, 40), QColor(Qt::white));
}

TEST_F(Stage, ACanvasIsDrawnOnByKeys) {
  QWidget* const canvas = Find("canvas");
  EXPECT_TRUE(canvas->focusPolicy() & Qt::TabFocus);
  canvas->setFocus(Qt::TabFocusReason);
  const QPoint middle = canvas->visibleRegion().boundingRect().center();
  const auto at = [this](const QPoint& place) {
    const forms::Bitmap& shown = window->canvas.Shown();
    return shown.Empty() ? forms::kWhitePixel : shown.At(place.x(), place.y());
  };
  const forms::Pixel ground = at(middle);
  const auto keys = [this](std::initializer_list<Qt::Key> pressed) {
    for (const Qt::Key key : pressed) Key("canvas", key);
  };
  const auto has_cross = [&] {
    return canvas->grab().toImage().pixelColor(middle + QPoint(5, 0)) == QColor(Qt::black);
  };
  EXPECT_TRUE(has_cross());
  Find("list")->setFocus();
  canvas->setFocus(Qt::OtherFocusReason);
  EXPECT_FALSE(has_cross());
  keys({Qt::Key_Right, Qt::Key_Left});  // the pen is up
  EXPECT_EQ(at(middle), ground);
  EXPECT_TRUE(has_cross());
  keys({Qt::Key_Space, Qt::Key_Down});
  Key("canvas", Qt::Key_Right, Qt::ShiftModifier);
  constexpr forms::Pixel kInk = 0xFF000000U;
  for (int y = 0; y <= 8; ++y) EXPECT_EQ(at(middle + QPoint(0, y)), kInk) << y;
  EXPECT_EQ(at(middle + QPoint(1, 8)), kInk);
  keys({Qt::Key_Space, Qt::Key_Down});
  EXPECT_EQ(at(middle + QPoint(1, 16)), ground);
  for (int i = 0; i < 200; ++i) Key("canvas", Qt::Key_Up);  // stays on what is seen
  Key("canvas", Qt::Key_Space);
  EXPECT_EQ(at({middle.x() + 1, 0}), kInk);
}

TEST_F(Stage, OverACanvasEveryMovementCountsAndElsewhereTheLatest) {
  const auto together = [] { return QCoreApplication::testAttribute(Qt::AA_CompressHighFrequencyEvents); };
  QTest::mouseMove(Find("canvas"));
  EXPECT_FALSE(together());  // before a button is pressed: a fast hand is ahead of the press
  QTest::mouseClick(Find("canvas"), Qt::LeftButton);
  EXPECT_FALSE(together());
  QTest::mouseMove(Find("list"));
  EXPECT_TRUE(together());
}

TEST_F(Stage, APointerShowsAtOnceAndComesBack) {
  const auto pointer = [this](const char* name) { return Find(name)->cursor().shape(); };
  Do([this] {
    window->canvas.MouseIcon = forms::Picture(forms::Bitmap(8, 8));
    window->canvas.MousePointer = forms::kPointerCustom;
  });
  EXPECT_EQ(pointer("canvas"), Qt::BitmapCursor);
  Do([&] {
    window->canvas.MousePointer = forms::kPointerHourglass;
    window->MousePointer = forms::kPointerHourglass;
    EXPECT_EQ(pointer("canvas"), Qt::WaitCursor);
    EXPECT_EQ(pointer("list"), Qt::WaitCursor);
    window->canvas.MousePointer = forms::kPointerCustom;
    window->MousePointer = forms::kPointerArrow;
  });
  EXPECT_EQ(pointer("canvas"), Qt::BitmapCursor);
  EXPECT_EQ(pointer("list"), Qt::ArrowCursor);
}

TEST_F(Stage, WhatCanBeClickedCanBePressedByKey) {
  EXPECT_EQ(Click("clickable_image"), "clickable_image click");
  EXPECT_EQ(Key("clickable_image", Qt::Key_Space), "clickable_image click");
  EXPECT_EQ(Key("swatch_label", Qt::Key_Return), "swatch_label click");
  EXPECT_EQ(Find("image")->focusPolicy(), Qt::NoFocus);
  Do([this] { window->progress.Value = 1000; });  // past its end it is full
  EXPECT_EQ(Find<QProgressBar>("progress")->value(), 100);
}

TEST_F(Stage, AFolderOpensByADoubleClick) {
  auto* const folders = Find<QListView>("folders");
  ASSERT_EQ(folders->model()->index(0, 0).data().toString(), "/");
  Click("folders", 8, 8);
  QTest::mouseDClick(folders->viewport(), Qt::LeftButton, {}, QPoint(8, 8));
  EXPECT_EQ(window->folders.Path, "/");
}

}  // namespace
}  // namespace lectern::desktop
