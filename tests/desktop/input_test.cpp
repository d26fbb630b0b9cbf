#include <QAbstractItemModel>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPaintEvent>
#include <QPainter>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>

#include "tests/desktop/stage.h"

namespace lectern::desktop {
namespace {

TEST_F(Stage, OptionsAreSetByMouseByKeyAndByTheTextBesideThem) {
  Click("bare_option");
  EXPECT_TRUE(window->bare_option.Value);
  EXPECT_FALSE(Find<QRadioButton>("option")->isChecked());
  Click("bare_option");  // counts again, and stays set
  EXPECT_TRUE(Find<QRadioButton>("bare_option")->isChecked());
  EXPECT_EQ(Log(), "bare_option click, bare_option click");
  QTest::keyClick(Find("bare_option"), Qt::Key_Up);
  EXPECT_TRUE(window->option.Value);
  Click("option_text");
  EXPECT_TRUE(window->bare_option.Value);
}

TEST_F(Stage, AListIsPressedAndClickedAlsoWhereItHasNoItem) {
  auto* const list = Find<QListView>("list");
  const QRect exodus = list->visualRect(list->model()->index(1, 0));
  Click("list", 20, exodus.center().y());
  EXPECT_EQ(window->list.SelectedIndex(), 1);
  EXPECT_EQ(Log(), "list press, list click");
  Click("list", 20, list->viewport()->height() - 3);
  EXPECT_EQ(Log(), "list press, list click");
  EXPECT_EQ(window->list.SelectedIndex(), 1);
  // The second press of a double click comes as an event of its own.
  Click("list", 20, exodus.center().y());
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, exodus.center());
  EXPECT_EQ(Log(), "list press, list click, list dblclick");
}

TEST_F(Stage, KeysMoveThroughAListAndLettersFindTheNextItem) {
  QListView* const list = Find<QListView>("list");
  list->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Log(), "");  // coming by is no click
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(window->list.List(window->list.SelectedIndex()), "Genesis");
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(window->list.SelectedIndex(), 1);
  QTest::keyClick(list, Qt::Key_End);
  EXPECT_EQ(window->list.SelectedIndex(), 5);
  Log();
  QTest::keyClick(list, 'l');
  EXPECT_EQ(window->list.List(window->list.SelectedIndex()), "Leviticus");
  EXPECT_NE(Log().find("list click"), std::string::npos);
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(Log(), "list key 13, command click");
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
  QTest::keyClick(bar, Qt::Key_Right);
  bar->triggerAction(QAbstractSlider::SliderPageStepSub);
  EXPECT_EQ(Log(), "bar 31, bar 30");
  Do([this] { window->bar.Max = 10; });  // the value stays; the thumb is at the end
  EXPECT_EQ(bar->value(), 10);
  EXPECT_EQ(window->bar.Value, 30);
  QTest::keyClick(bar, Qt::Key_Left);
  EXPECT_EQ(window->bar.Value, 9);
}

TEST_F(Stage, TypingAndPickingInAComboBoxAreTwoThings) {
  auto* const combo = Find<QComboBox>("combo");
  Log();
  QTest::keyClicks(combo->lineEdit(), "0");
  EXPECT_EQ(window->combo.Text, "100");
  EXPECT_EQ(Log(), "");
  QTest::keyClick(combo, Qt::Key_Down);
  EXPECT_EQ(Log(), "combo click");
  Do([this] { window->combo.Text = "odd"; });
  EXPECT_EQ(combo->currentText(), "odd");
}

TEST_F(Stage, APressOnACanvasPaintsWhereItFell) {
  const QPoint place(40, 30);
  QTest::mousePress(Find("canvas"), Qt::LeftButton, {}, place);
  QTest::mouseMove(Find("canvas"), place + QPoint(60, 0));
  QTest::mouseRelease(Find("canvas"), Qt::LeftButton);
  EXPECT_EQ(window->canvas.Shown().At(40, 30), 0xFF000000U);
  const QImage shot = Find("canvas")->grab().toImage();
  EXPECT_EQ(shot.pixelColor(place), QColor(Qt::black));
  EXPECT_EQ(shot.pixelColor(place + QPoint(30, 0)), QColor(Qt::white));  // no line between two events
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
  QTest::keyClick(canvas, Qt::Key_Right);  // the pen is up
  QTest::keyClick(canvas, Qt::Key_Left);
  EXPECT_EQ(at(middle), ground);
  QTest::keyClick(canvas, Qt::Key_Space);
  QTest::keyClick(canvas, Qt::Key_Down);
  QTest::keyClick(canvas, Qt::Key_Right, Qt::ShiftModifier);
  constexpr forms::Pixel kInk = 0xFF000000U;
  for (int y = 0; y <= 8; ++y) EXPECT_EQ(at(middle + QPoint(0, y)), kInk) << y;
  EXPECT_EQ(at(middle + QPoint(1, 8)), kInk);
  QTest::keyClick(canvas, Qt::Key_Space);
  QTest::keyClick(canvas, Qt::Key_Down);
  EXPECT_EQ(at(middle + QPoint(1, 16)), ground);
  for (int i = 0; i < 200; ++i) QTest::keyClick(canvas, Qt::Key_Up);  // stays on what is seen
  QTest::keyClick(canvas, Qt::Key_Space);
  EXPECT_EQ(at({middle.x() + 1, 0}), kInk);
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

TEST_F(Stage, AStrokePaintsNoMoreOfTheCanvasThanItsDot) {
  QWidget* const canvas = Find("canvas");
  QTest::mousePress(canvas, Qt::LeftButton, {}, QPoint(40, 30));
  QCoreApplication::processEvents();
  Painted painted(*canvas);
  QTest::mouseMove(canvas, QPoint(100, 60));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !painted.area.isEmpty(); }));
  EXPECT_EQ(painted.area, QRect(96, 56, 9, 9));
  QTest::mouseRelease(canvas, Qt::LeftButton);
}

TEST_F(Stage, OverACanvasEveryMovementIsWantedAndElsewhereTheLatest) {
  const auto together = [] { return QCoreApplication::testAttribute(Qt::AA_CompressHighFrequencyEvents); };
  QTest::mouseMove(Find("canvas"));
  EXPECT_FALSE(together());  // before a button is pressed: a fast hand is ahead of the press
  QTest::mouseClick(Find("canvas"), Qt::LeftButton);
  EXPECT_FALSE(together());
  QTest::mouseMove(Find("list"));
  EXPECT_TRUE(together());
}

TEST_F(Stage, APointerShowsAtOnceAndComesBack) {
  QWidget* const canvas = Find("canvas");
  Do([this] {
    window->canvas.MouseIcon = forms::Picture(forms::Bitmap(8, 8));
    window->canvas.MousePointer = forms::kPointerCustom;
  });
  EXPECT_EQ(canvas->cursor().shape(), Qt::BitmapCursor);
  Do([&] {
    window->canvas.MousePointer = forms::kPointerHourglass;
    window->MousePointer = forms::kPointerHourglass;
    EXPECT_EQ(canvas->cursor().shape(), Qt::WaitCursor);
    EXPECT_EQ(Find("list")->cursor().shape(), Qt::WaitCursor);
    window->canvas.MousePointer = forms::kPointerCustom;
    window->MousePointer = forms::kPointerArrow;
  });
  EXPECT_EQ(canvas->cursor().shape(), Qt::BitmapCursor);
  EXPECT_EQ(Find("list")->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Stage, WhatCanBeClickedCanBePressedByKey) {
  Click("clickable_image");
  QTest::keyClick(Find("clickable_image"), Qt::Key_Space);
  QTest::keyClick(Find("swatch_label"), Qt::Key_Return);
  EXPECT_EQ(Log(), "clickable_image click, clickable_image click, swatch_label click");
  EXPECT_EQ(Find("image")->focusPolicy(), Qt::NoFocus);
}

TEST_F(Stage, AProgressBarPastItsEndIsFull) {
  Do([this] { window->progress.Value = 1000; });
  EXPECT_EQ(Find<QProgressBar>("progress")->value(), 100);
}

TEST_F(Stage, AFolderOpensByADoubleClick) {
  auto* const folders = Find<QListView>("folders");
  ASSERT_EQ(folders->model()->index(0, 0).data().toString(), "/");
  QTest::mouseClick(folders->viewport(), Qt::LeftButton, {}, QPoint(8, 8));
  QTest::mouseDClick(folders->viewport(), Qt::LeftButton, {}, QPoint(8, 8));
  EXPECT_EQ(window->folders.Path, "/");
}

}  // namespace
}  // namespace lectern::desktop
