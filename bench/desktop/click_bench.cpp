// How long the desktop program takes from a click to the picture of what it brings, seen from inside, on the
// display or with QT_QPA_PLATFORM=offscreen. Started in a data folder, which it leaves as it is; writes a
// line for each:
//   NAME <tab> least ms <tab> median ms
#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTextEdit>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <vector>

#include "ui/desktop/app/desktop.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/painted_widget.h"

namespace {

constexpr int kRounds = 41;

// Whether a widget was painted since it was last asked about.
class Painted : public QObject {
 public:
  explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
  void Forget() { painted_ = false; }
  bool Is() const { return painted_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted_ = true;
    return QObject::eventFilter(watched, event);
  }

 private:
  bool painted_ = false;
};

template <class Widget = QWidget>
Widget& Find(const char* name) {
  for (QWidget* widget : QApplication::allWidgets()) {
    auto* const found = qobject_cast<Widget*>(widget);
    if (found != nullptr && widget->objectName() == QLatin1String(name)) return *found;
  }
  std::fprintf(stderr, "click_bench: there is no %s\n", name);
  std::exit(1);
}

void Press(QWidget& widget, QPoint place) {
  const QPointF global = widget.mapToGlobal(QPointF(place));
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, QPointF(place), global, Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }
}

void Press(QWidget& widget) { Press(widget, widget.rect().center()); }

void Type(QWidget& widget, const QString& text) {
  for (const QChar letter : text) {
    QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, letter);
    QApplication::sendEvent(&widget, &event);
  }
}

void Rest() {
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
  QGuiApplication::sync();
}

// Runs what a person does, each time until `done` and all is on the screen.
void Measure(
    const char* name, const std::function<void(int round)>& act, const std::function<bool()>& done,
    const std::function<void()>& restore = [] {}) {
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) {
    Rest();
    QElapsedTimer clock;
    clock.start();
    act(round);
    while (!done()) QApplication::processEvents();
    QGuiApplication::sync();
    times.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
    restore();
  }
  std::sort(times.begin(), times.end());
  std::printf("%s\t%.1f\t%.1f\n", name, times.front(), times[times.size() / 2]);
}

void MeasureReading() {
  auto& text = Find<QTextEdit>("rtxt");
  auto& books = Find<QAbstractItemView>("lst");
  auto& chapters = Find("scr");
  Painted painted(*text.viewport());
  QString before;
  const auto remember = [&] {
    painted.Forget();
    before = text.document()->begin().next().text();
  };
  const auto another = [&] { return painted.Is() && text.document()->begin().next().text() != before; };

  constexpr int kBooks = 12;  // those in sight
  const auto click_book = [&](int round) {
    remember();
    const QModelIndex row = books.model()->index((round + 1) % kBooks, 0);
    Press(*books.viewport(), books.visualRect(row).center());
  };
  Measure("a click on a book", click_book, another);

  const auto click_psalms = [&] {
    const QModelIndex row = books.model()->index(18, 0);
    books.scrollTo(row);
    Press(*books.viewport(), books.visualRect(row).center());
  };
  click_psalms();
  const auto next_chapter = [&](int) {
    remember();
    Press(chapters, QPoint(chapters.width() - 4, chapters.height() / 2));
  };
  Measure("a click on the next chapter", next_chapter, another);
}

void MeasureSearch(const char* name, const QString& term) {
  auto& button = Find("Command22");
  auto& list = Find<QAbstractItemView>("lsts");
  auto& box = Find("txts");
  Painted painted(*list.viewport());
  const auto type = [&] {
    QKeyEvent all(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier);
    QApplication::sendEvent(&box, &all);
    Type(box, term);
    Rest();
    painted.Forget();
  };
  type();
  Measure(
      name, [&](int) { Press(button); },
      [&] { return !button.isEnabled() && painted.Is() && list.model()->rowCount() > 0; }, type);
}

// A click on a panel's button, and each step while the window's edge is dragged.
void MeasureSize(const QSize& size) {
  QWidget& frame = *Find("rtxt").window();
  frame.resize(size);
  Rest();
  std::printf("at %d by %d pixels\n", frame.width(), frame.height());
  MeasureReading();
  Painted painted(*Find<QTextEdit>("rtxt").viewport());
  const auto drag = [&](int round) {
    painted.Forget();
    frame.resize(size - QSize(round % 20, round % 20) - QSize(1, 1));
  };
  Measure("a step of resizing", drag, [&] { return painted.Is(); });
  frame.resize(size);
  Rest();
  const auto open = [&](int) {
    painted.Forget();
    Press(Find("Command8"));
  };
  Measure(
      "opening the concordance", open, [] { return Find("frmc").isVisible(); },
      [] {
        Press(Find("Command9"));
        Rest();
      });
}

void MeasureAll() {
  Rest();
  for (const QSize size : {QSize(916, 687), QSize(1366, 740), QSize(1920, 1050)}) MeasureSize(size);
  Press(Find("Command16"));
  Rest();
  Press(Find("op1"), QPoint(6, 6));
  Rest();
  MeasureSearch("a search for grace", QStringLiteral("grace"));
  MeasureSearch("a search for the", QStringLiteral("the"));
}

}  // namespace

int main(int /*argc*/, char** arguments) {
  lectern::desktop::PrepareApplication();
  int only_the_name = 1;
  QApplication application(only_the_name, arguments);
  lectern::desktop::ApplyTheme();
  lectern::desktop::DescribePaintedWidgets();
  lectern::desktop::Desktop desktop(std::filesystem::current_path().string());
  constexpr int kUntilItStands = 500;  // milliseconds
  QTimer::singleShot(kUntilItStands, [] {
    MeasureAll();
    QApplication::exit(0);
  });
  return desktop.Run();
}
