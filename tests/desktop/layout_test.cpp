// The order of the keyboard, a face on a screen that is too small for it, and every window at every size.
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>
#include <map>

#include "tests/desktop/stage.h"
#include "ui/desktop/app/desktop.h"
#include "ui/desktop/layout/face_layout.h"
#include "ui/desktop/layout/fitted_face.h"
#include "ui/desktop/layout/places.h"
#include "ui/desktop/layout/window_focus.h"
#include "ui/desktop/views/control_view.h"

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

// A window that a person enlarges, with one of its panels open at a time.
class EveryWindow : protected SmallFolder, public testing::TestWithParam<const char*> {
 protected:
  using Geometries = std::map<std::string, QRect>;

  EveryWindow() {
    EXPECT_TRUE(is_running);
    Do([this] { window.Visible = true; });
    for (forms::Control* control : window.Controls()) {
      auto* const placed = dynamic_cast<forms::PlacedControl*>(control);
      if (placed == nullptr) continue;
      controls.push_back(placed);
      if (FaceLayout::IsMovable(*placed)) panels.push_back(placed);
    }
    for (const forms::PlacedControl* control : controls) {
      if (ControlView* view = SeenViewOf(control)) frame = view->Widget()->window();
    }
    EXPECT_TRUE(QTest::qWaitForWindowExposed(frame));
  }

  void Do(const std::function<void()>& act) { desktop.GetEvents().Deliver(window, act); }

  void Resize(const QSize& size) {
    frame->resize(size);
    QCoreApplication::processEvents();
  }

  // As the model has them, and as the screen does.
  Geometries Model() const {
    Geometries all;
    for (const forms::PlacedControl* control : controls) all[control->FullName()] = PlaceOf(*control);
    return all;
  }
  Geometries Shown() const {
    Geometries all;
    for (const forms::PlacedControl* control : controls) {
      if (!control->IsShown()) continue;
      if (ControlView* view = SeenViewOf(control)) all[control->FullName()] = view->Widget()->geometry();
    }
    return all;
  }

  // Whether it lies over others on purpose: a shape under its label, a shadow, a panel over what it replaces.
  static bool CoversOthers(const forms::PlacedControl& control) {
    const bool is_panel = dynamic_cast<const forms::Container*>(&control) != nullptr;
    return control.GetKind() == forms::Kind::kShape || control.IsEcho() ||
           (is_panel && control.ShownAt() != 0);
  }

  void Check(const forms::PlacedControl* open) const {
    const bool beside = open != nullptr && frame->width() >= 1300;
    for (auto a = controls.begin(); a != controls.end(); ++a) {
      const ControlView* const view = SeenViewOf(*a);
      if (view == nullptr || !(*a)->IsShown()) continue;
      const QRect place = view->Widget()->geometry();
      const std::string name = (*a)->FullName();
      EXPECT_FALSE((*a)->IsStorage()) << name;
      const bool may_scroll = dynamic_cast<forms::PictureBox*>(*a) != nullptr && (*a)->MouseDown;
      EXPECT_TRUE(may_scroll || view->Widget()->parentWidget()->rect().contains(place)) << name;
      for (auto b = std::next(a); b != controls.end(); ++b) {
        const ControlView* const other = SeenViewOf(*b);
        if (other == nullptr || &(*a)->Parent() != &(*b)->Parent()) continue;
        if (CoversOthers(**a) || CoversOthers(**b)) {
          if (!beside || (*a != open && *b != open)) continue;
        }
        EXPECT_FALSE(place.intersects(other->Widget()->geometry())) << name << " and " << (*b)->FullName();
      }
    }
  }

  Desktop desktop{folder_.Path()};
  bool is_running = desktop.Start();
  forms::Window& window = *desktop.Program().Touch(GetParam());
  std::vector<forms::PlacedControl*> controls;
  std::vector<forms::PlacedControl*> panels;
  QWidget* frame = nullptr;
};

TEST_P(EveryWindow, ArrangesItsControlsAtEverySizeAndLeavesTheModelAlone) {
  for (forms::PlacedControl* panel : panels) {
    Do([panel] { panel->Visible = true; });  // the second pane takes its places when it is first opened
    Do([panel] { panel->Visible = false; });
  }
  const Geometries model = Model();
  const Geometries at_first = Shown();
  const QSize start = frame->size();
  for (const QSize more :
       {QSize(0, 0), QSize(108, 60), QSize(450, 60), QSize(1004, 360), QSize(3000, 1500)}) {
    Resize(start + more);
    SCOPED_TRACE(std::to_string(frame->width()));
    Check(nullptr);
    for (forms::PlacedControl* panel : panels) {
      SCOPED_TRACE(panel->Name());
      Do([panel] { panel->Visible = true; });
      Check(panel);
      if (frame->width() < 1000) {
        EXPECT_EQ(SeenViewOf(panel)->Widget()->pos(), PlaceOf(*panel).topLeft());
      }
      Do([panel] { panel->Visible = false; });
    }
  }
  Resize(start);
  EXPECT_EQ(Shown(), at_first);
  EXPECT_EQ(Model(), model);
}

INSTANTIATE_TEST_SUITE_P(OfThoseThatGrow, EveryWindow, testing::Values("Form1", "Form3", "Form4"),
                         [](const auto& window) { return std::string(window.param); });

// By an empty part of it: over the text, beside it, and back by a double click.
class Panels : protected SmallFolder, public testing::Test {};

TEST_F(Panels, AreMovedWithinTheWindowAndComeBack) {
  Desktop desktop(folder_.Path());
  ASSERT_TRUE(desktop.Start());
  forms::Window& window = *desktop.Program().Touch("Form1");
  auto& panel = dynamic_cast<forms::PlacedControl&>(*window.Find("frms"));
  desktop.GetEvents().Deliver(window, [&panel] { panel.Visible = true; });
  QWidget* const widget = SeenViewOf(&panel)->Widget();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(widget->window()));
  const QPoint empty(20, widget->height() - 8);
  const auto drag = [&](const QPoint& way) {
    QTest::mousePress(widget, Qt::LeftButton, {}, empty);
    const QPoint to = widget->mapToGlobal(empty + way);
    QMouseEvent move(QEvent::MouseMove, widget->mapFromGlobal(QPointF(to)), QPointF(to), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, empty);
  };
  const QPoint place = widget->pos();
  EXPECT_EQ(place, PlaceOf(panel).topLeft());
  drag({40, 30});
  EXPECT_EQ(widget->pos(), place + QPoint(40, 30));
  drag({4000, 4000});
  EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()));
  desktop.GetEvents().Deliver(window, [&panel] { panel.Visible = false; });
  desktop.GetEvents().Deliver(window, [&panel] { panel.Visible = true; });
  EXPECT_NE(widget->pos(), place) << "it stays where it was moved";
  QTest::mouseDClick(widget, Qt::LeftButton, {}, empty);
  EXPECT_EQ(widget->pos(), place);
  EXPECT_EQ(panel.Left, 800);
}

}  // namespace
}  // namespace lectern::desktop
