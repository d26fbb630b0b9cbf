#include "ui/desktop/app/desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <algorithm>
#include <cassert>
#include <clocale>
#include <filesystem>
#include <utility>

#include "ui/desktop/app/end_signals.h"
#include "ui/desktop/app/notice.h"
#include "ui/desktop/app/one_program.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/painted_widget.h"

namespace lectern::desktop {

namespace {

// The names with which the two programs answer another that is started on their folder.
constexpr const char* kReaderProgram = "reader";
constexpr const char* kKeeperProgram = "keeper";

// The places are designed for fonts at 96 dots an inch. If the person has set a higher resolution for fonts,
// the whole window is scaled.
void ScaleWithFonts() {
  constexpr double kDotsPerInch = 96;
  const double dots = qEnvironmentVariable("QT_FONT_DPI").toDouble();
  if (dots <= 0) return;
  const double factor = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble();
  qputenv("QT_SCALE_FACTOR", QByteArray::number((factor > 0 ? factor : 1) * dots / kDotsPerInch));
  qputenv("QT_FONT_DPI", QByteArray::number(kDotsPerInch));
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");  // the fonts' dots already include the screen's
}

}  // namespace

void PrepareApplication() {
  assert(qApp == nullptr);
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication::setApplicationName("lectern");
  QApplication::setDesktopFileName("lectern");
  QApplication::setQuitOnLastWindowClosed(false);
  ScaleWithFonts();
}

int RunApplication(char** arguments, const std::vector<std::string>& bench) {
  const QByteArray token = TakeActivationToken();
  PrepareApplication();
  int only_the_name = 1;
  QApplication application(only_the_name, arguments);
  std::setlocale(LC_NUMERIC, "C");  // numbers in files have the same form everywhere
  ApplyTheme();

  const std::string folder = std::filesystem::current_path().string();
  const QString name = bench.empty() ? kReaderProgram : kKeeperProgram;
  OneProgram one_program(folder, name);
  switch (one_program.Claim(folder, token)) {
    case OneProgram::Outcome::kSilent:
      return 1;
    case OneProgram::Outcome::kAnswered:
      // The keeper's program has everything that the reader's has.
      if (name != kKeeperProgram || one_program.Answer() == name) return 0;
      QMessageBox::information(nullptr, "Lectern 2",
                               "Lectern is already open on this folder, without the keeper's tools:\n\n" +
                                   QString::fromStdString(folder) +
                                   "\n\nClose it, then start the keeper's program again.");
      return 1;
    case OneProgram::Outcome::kOurs:
      break;
  }
  DescribePaintedWidgets();
  Desktop desktop(folder, bench);
  one_program.Listen([&desktop] { desktop.ComeToFront(); });
  const EndSignals end_signals([&desktop] { desktop.KeepUnsaved(); });
  return desktop.Run();
}

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
    if (now == nullptr) return;
    used_last_ = now->window();
    for (const auto& window : windows_) {
      if (window->Frame() == now->window()) return window->FocusArrived();
    }
  });
}

Desktop::~Desktop() = default;

void Desktop::JoinWindows() {
  program_.windows.made = [this](forms::Window& window) {
    windows_.push_back(std::make_unique<WindowView>(
        window, events_, [this](forms::Window& closed) { program_.Close(closed); }));
    if (window.StaysInFront()) windows_.back()->StayInFrontOf(*windows_.front());
    timers_.Watch(window);
  };
  program_.windows.let_go = [this](forms::Window& window) { LetGo(window); };
}

void Desktop::LetGo(const forms::Window& window) {
  timers_.Forget(window);
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&window](const auto& view) { return view->IsOf(window); });
  assert(found != windows_.end());
  // Destroying widgets moves the focus, for which the list must be valid.
  const std::unique_ptr<WindowView> closed = std::move(*found);
  windows_.erase(found);
}

void Desktop::JoinPlatform() {
  program_.report_failure = [this](const base::RunTimeError& error) { platform_.Report(error); };
  program_.picture_saved = [this](const std::string& file) {
    if (QWidget* const frame = FrontFrame()) ShowNotice(*frame, "Saved as " + QString::fromStdString(file));
  };
  platform_.before_box = [this] {
    events_.ShowAll();
    return FrontFrame();
  };
  platform_.with_face = [this](forms::Window& window, const std::function<void(QWidget&)>& print) {
    PrintFace(window, print);
  };
}

// Paper is light, whatever the theme.
void Desktop::PrintFace(const forms::Window& window, const std::function<void(QWidget&)>& print) {
  const QPalette theme = QApplication::palette();
  const bool is_dark = IsDark(theme.color(QPalette::Base));
  if (is_dark) QApplication::setPalette(OwnPalette());
  events_.ShowAll();
  for (const auto& view : windows_) {
    if (view->IsOf(window)) print(view->Face());
  }
  if (is_dark) QApplication::setPalette(theme);
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
  if (front != nullptr) BringToFront(*front);
}

bool Desktop::Start() {
  events_.Run([this] { program_.Start(); });
  if (program_.HasEnded()) return false;
  // The main window stays until the program ends.
  auto& main_window = dynamic_cast<ui::Form1&>(*program_.Touch("Form1"));
  WindowView& view = **std::find_if(windows_.begin(), windows_.end(),
                                    [&](const auto& shown) { return shown->IsOf(main_window); });
  desk_ = std::make_unique<DeskView>(main_window, view);
  if (!bench_controls_.empty()) bench_ = std::make_unique<BenchView>(main_window, view, bench_controls_);
  SayWhatWasMended();
  return true;
}

void Desktop::SayWhatWasMended() {
  QStringList names;
  for (const std::string& name : program_.Mended()) names.append(QString::fromStdString(name));
  if (names.isEmpty() || FrontFrame() == nullptr) return;
  ShowNotice(*FrontFrame(),
             "Saving was interrupted last time. Put back as it was before: " + names.join(", "));
}

int Desktop::Run() {
  if (!Start()) return program_.Status();
  // Loading the icon can wait until the text is on the screen.
  constexpr int kUntilTextIsShown = 200;  // milliseconds
  QTimer::singleShot(kUntilTextIsShown, [] { QApplication::setWindowIcon(ProgramIcon()); });
  return QApplication::exec();
}

void Desktop::Settle() {
  if (program_.HasEnded()) return End();
  // Settling a window may deliver an event that creates another window.
  for (std::size_t i = 0; i < windows_.size(); ++i) windows_[i]->Settle();
  paint_start_.Settle();
  if (desk_) desk_->Settle();
  if (bench_) bench_->Settle();
  timers_.Update();
  drafts_.Look();
  write_notice_.Look();
}

void Desktop::End() {
  drafts_.KeepNow();
  for (const auto& window : windows_) {
    if (window->Frame() != nullptr) window->Frame()->hide();
  }
  if (bench_) bench_->Frame().hide();
  QApplication::exit(program_.Status());
}

}  // namespace lectern::desktop
