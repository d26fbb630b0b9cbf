// A movement of the mouse over the canvas of the paint window, from the event to the widget's new pixels: in
// the picture's own size and at the largest zoom. Beside it, what painting the whole widget anew would cost.
#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

#include "base/files/file_system.h"
#include "bench/real_data.h"
#include "forms/control.h"
#include "ui/desktop/app/events.h"
#include "ui/desktop/app/platform.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/window_view.h"
#include "ui/program.h"

namespace {

using namespace lectern;

// The program with the paint window open on the first picture of Genesis, and the thickest brush in hand.
class PaintWindow {
 public:
  explicit PaintWindow(std::int64_t zooms) {
    program_.windows.made = [this](forms::Window& window) {
      views_.push_back(std::make_unique<desktop::WindowView>(window, events_, [](forms::Window&) {}));
    };
    program_.windows.let_go = [](forms::Window&) {};
    events_.settled = [this] {
      for (const auto& view : views_) view->Settle();
    };
    events_.Run([this] { program_.Start(); });
    Press("Form1", "imgp", 0);
    Press("Form1", "Command32");
    Press("Form4", "clrboxs", 2);
    Press("Form4", "picpbs", 4);
    for (std::int64_t level = 0; level < zooms; ++level) Press("Form4", "cmdm", 0);
    QApplication::processEvents();
    for (const QWidget* top : QApplication::topLevelWidgets()) {
      if (canvas_ == nullptr) canvas_ = top->findChild<QWidget*>("picbox");
    }
    Send(QEvent::MouseButtonPress, {0, 0}, Qt::LeftButton);
  }
  QWidget& Canvas() { return *canvas_; }

  // The mouse moves, at places that are seen through the viewport.
  void Move(int step) {
    const QPoint seen = canvas_->parentWidget()->rect().center();
    const QPoint place = canvas_->mapFromParent(seen) + QPoint(step % 400 - 200, step % 300 - 150);
    Send(QEvent::MouseMove, place, Qt::NoButton);
  }

  // What was marked as changed is painted, as happens when the events are done.
  void Paint() {
    QEvent update(QEvent::UpdateRequest);
    QApplication::sendEvent(canvas_->window(), &update);
  }

 private:
  void Press(const char* window_name, const char* name, int index = -1) {
    forms::Window* const window = program_.Touch(window_name);
    forms::Control* const control = window->Find(name, index);
    events_.Deliver(*window, [control] {
      control->PersonPresses({});
      control->PersonClicks();
    });
  }

  void Send(QEvent::Type type, const QPoint& place, Qt::MouseButton button) {
    QMouseEvent event(type, place, canvas_->mapToGlobal(place), button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(canvas_, &event);
  }

  desktop::DesktopPlatform platform_;
  files::FileSystem files_{bench::DataFolder()};
  ui::Program program_{{platform_, files_}};
  desktop::Events events_{
      [this](forms::Window& window, const std::function<void()>& event) { program_.Deliver(window, event); }};
  std::vector<std::unique_ptr<desktop::WindowView>> views_;
  QWidget* canvas_ = nullptr;
};

void MoveOverTheCanvas(benchmark::State& state) {
  PaintWindow window(state.range(0));
  int step = 0;
  for (auto _ : state) {
    window.Move(step++);
    window.Paint();
  }
}
BENCHMARK(MoveOverTheCanvas)->ArgName("zoom")->Arg(0)->Arg(2)->Unit(benchmark::kMicrosecond);

void PaintTheWholeCanvas(benchmark::State& state) {
  PaintWindow window(state.range(0));
  for (auto _ : state) {
    window.Canvas().update();
    window.Paint();
  }
}
BENCHMARK(PaintTheWholeCanvas)->ArgName("zoom")->Arg(0)->Arg(2)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  desktop::ApplyTheme();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
