#include "ui/desktop/app/desktop.h"

#include <QApplication>
#include <algorithm>
#include <utility>

#include "ui/desktop/app/doorbell.h"
#include "ui/desktop/app/icon.h"
#include "ui/desktop/app/theme.h"

namespace lectern::desktop {

Desktop::Desktop(std::string data_folder, std::vector<std::string> bench)
    : files_(std::move(data_folder)),
      program_({platform_, files_}),
      events_([this](forms::Window& window, const std::function<void()>& event) {
        program_.Deliver(window, event);
      }),
      timers_(events_, [this](const auto& due) { program_.Tick(due); }),
      bench_controls_(std::move(bench)) {
  JoinWindows();
  JoinPlatform();
  events_.starting = [this] {
    for (const auto& window : windows_) window->Commit();
  };
  events_.settled = [this] { Settle(); };
  QObject::connect(qApp, &QApplication::focusChanged, &receiver_, [this](QWidget*, QWidget* now) {
    if (now != nullptr) used_last_ = now->window();
    for (const auto& window : windows_) {
      if (now != nullptr && window->Frame() == now->window()) return window->FocusArrived();
    }
  });
}

Desktop::~Desktop() = default;

void Desktop::JoinWindows() {
  program_.windows.made = [this](forms::Window& window) {
    windows_.push_back(std::make_unique<WindowView>(
        window, events_, [this](forms::Window& closed) { program_.Close(closed); }));
    timers_.Watch(window);
  };
  program_.windows.let_go = [this](forms::Window& window) {
    timers_.Forget(window);
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&window](const auto& view) { return view->IsOf(window); });
    if (found == windows_.end()) return;
    // One of its own widgets may be at work at this very moment.
    (*found)->Abandon();
    found->release()->deleteLater();
    windows_.erase(found);
  };
}

void Desktop::JoinPlatform() {
  program_.report_failure = [this](const base::RunTimeError& error) { platform_.Report(error); };
  platform_.before_box = [this] {
    events_.ShowAll();
    return FrontFrame();
  };
  platform_.with_face = [this](forms::Window& window, const std::function<void(QWidget&)>& print) {
    const QPalette theme = QApplication::palette();
    const bool is_dark = IsDark(theme.color(QPalette::Base));
    if (is_dark) QApplication::setPalette(OwnPalette());
    events_.ShowAll();
    for (const auto& view : windows_) {
      if (view->IsOf(window)) print(view->Face());
    }
    if (is_dark) QApplication::setPalette(theme);
  };
}

QWidget* Desktop::FrontFrame() const {
  if (QWidget* const active = QApplication::activeWindow()) return active;
  const auto shown = std::find_if(windows_.rbegin(), windows_.rend(), [](const auto& view) {
    return view->Frame() != nullptr && view->Frame()->isVisible();
  });
  return shown == windows_.rend() ? nullptr : (*shown)->Frame();
}

void Desktop::ComeToFront() {
  QWidget* front = QApplication::activeModalWidget();
  if (front == nullptr && used_last_ != nullptr && used_last_->isVisible()) front = used_last_;
  if (front == nullptr) front = FrontFrame();
  if (front != nullptr) ComeForward(*front);
}

bool Desktop::Start() {
  events_.Run([this] { program_.Start(); });
  if (!program_.HasEnded() && !bench_controls_.empty()) ShowBench();
  return !program_.HasEnded();
}

int Desktop::Run() {
  if (!Start()) return program_.Status();
  // A mark in the title bar is no reason to keep the reader from the text.
  constexpr int kWhenTextIsThere = 200;  // milliseconds
  QTimer::singleShot(kWhenTextIsThere, [] { QApplication::setWindowIcon(ProgramIcon()); });
  return QApplication::exec();
}

// The main window is the first that the program makes, and stands until it ends.
void Desktop::ShowBench() {
  bench_ = std::make_unique<BenchView>(*program_.windows.All().front(), *windows_.front(), bench_controls_);
}

void Desktop::Settle() {
  if (program_.HasEnded()) return Leave();
  // Settling a window may deliver an event, and that one make or end others.
  for (std::size_t i = 0; i < windows_.size(); ++i) windows_[i]->Settle();
  if (bench_) bench_->Settle();
  timers_.Reckon();
}

void Desktop::Leave() {
  for (const auto& window : windows_) {
    if (window->Frame() != nullptr) window->Frame()->hide();
  }
  if (bench_) bench_->Frame().hide();
  QApplication::exit(program_.Status());
}

}  // namespace lectern::desktop
