// The sample window on a screen, and a person who uses it.
#pragma once

#include <QAbstractScrollArea>
#include <QApplication>
#include <QTest>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "base/errors.h"
#include "tests/desktop/sample_window.h"
#include "tests/kit/small_world.h"
#include "tests/kit/temporary_folder.h"
#include "ui/desktop/app/events.h"
#include "ui/desktop/app/platform.h"
#include "ui/desktop/app/timers.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

// A data folder for the whole program.
class SmallFolder {
 protected:
  SmallFolder() { LaySmallWorld(folder_.Path()); }
  TemporaryFolder folder_;
};

class Stage : public testing::Test {
 protected:
  Stage() {
    events.starting = [this] {
      if (view) view->Commit();
    };
    events.settled = [this] {
      if (view) view->Settle();
      timers.Update();
    };
    view = std::make_unique<WindowView>(*window, events, [this](forms::Window&) { close(); });
    timers.Watch(*window);
    QObject::connect(qApp, &QApplication::focusChanged, &receiver, [this] {
      if (view) view->FocusArrived();
    });
    Do([this] { window->Visible = true; });
    EXPECT_TRUE(QTest::qWaitForWindowActive(view->Frame()));
  }
  ~Stage() override { LetGo(); }

  // As the program lets a window go.
  void LetGo() {
    if (!window) return;
    timers.Forget(*window);
    view.reset();
    window.reset();
  }

  // What the program's own code does in an event.
  void Do(const std::function<void()>& act) { events.Deliver(*window, act); }

  template <class Widget>
  Widget* Find(const char* name) {
    auto* const widget = view->Frame()->findChild<Widget*>(name);
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  QWidget* Find(const char* name) { return Find<QWidget>(name); }

  // Where a mouse meets the widget.
  QWidget* Target(const char* name) {
    QWidget* const widget = Find(name);
    auto* const area = qobject_cast<QAbstractScrollArea*>(widget);
    return area == nullptr ? widget : area->viewport();
  }

  // What the handlers wrote down when a control is pressed, or a key is.
  std::string Click(const char* name) {
    QTest::mouseClick(Target(name), Qt::LeftButton);
    return Log();
  }
  std::string Click(const char* name, int x, int y) {
    QTest::mouseClick(Target(name), Qt::LeftButton, {}, QPoint(x, y));
    return Log();
  }
  std::string Key(const char* name, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(Find(name), key, modifiers);
    return Log();
  }
  std::string FocusName() { return view->Frame()->focusWidget()->objectName().toStdString(); }

  // What the handlers wrote down since the last time.
  std::string Log() {
    std::string joined;
    for (const std::string& line : std::exchange(window->log, {})) {
      joined += (joined.empty() ? "" : ", ") + line;
    }
    return joined;
  }

  DesktopPlatform platform;
  files::FileSystem files{std::filesystem::temp_directory_path().string()};
  std::unique_ptr<SampleWindow> window = std::make_unique<SampleWindow>(forms::Services{platform, files});
  std::optional<base::RunTimeError> failure;
  std::function<void()> close = [] {};
  Events events{[this](forms::Window&, const std::function<void()>& event) {
    try {
      event();
    } catch (const base::RunTimeError& error) {
      failure = error;
    }
  }};
  Timers timers{events, [this](const auto& due) {
                  if (window && window->timer.IsTicking() && due(window->timer)) window->timer.Tick();
                }};
  std::unique_ptr<WindowView> view;
  QObject receiver;
};

}  // namespace lectern::desktop
