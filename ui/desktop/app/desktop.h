// The desktop program: owns the windows of `ui::Program` on the screen, delivers what a person does, and
// ticks the timers until the program ends.
#pragma once

#include <QObject>
#include <QPointer>
#include <memory>
#include <string>
#include <vector>

#include "base/files/file_system.h"
#include "ui/desktop/app/drafts.h"
#include "ui/desktop/app/events.h"
#include "ui/desktop/app/paint_start.h"
#include "ui/desktop/app/platform.h"
#include "ui/desktop/app/timers.h"
#include "ui/desktop/app/write_notice.h"
#include "ui/desktop/desk/desk_view.h"
#include "ui/desktop/views/bench_view.h"
#include "ui/desktop/views/window_view.h"
#include "ui/program.h"

namespace lectern::desktop {

// Prepares Qt for a program with a window.
// Requires: there is no QApplication yet.
void PrepareApplication();

// Runs the program in the current folder and returns its exit status. If a program is already open on that
// folder, it comes to the front and this one ends. `bench` names controls outside the main window that are
// shown in a window of their own.
int RunApplication(char** arguments, const std::vector<std::string>& bench);

class Desktop {
 public:
  // Requires: there is a QApplication.
  explicit Desktop(std::string data_folder, std::vector<std::string> bench = {});
  ~Desktop();

  // Starts the program, waits until it ends, and returns its exit status.
  int Run();

  // The first half of Run. Returns false if the program has already ended.
  bool Start();

  // Keeps what is not saved, as the program is about to be ended from outside.
  void KeepUnsaved() { drafts_.KeepNow(); }

  // Raises the window that was used last, or the box that is open.
  void ComeToFront();

  ui::Program& Program() { return program_; }
  Events& GetEvents() { return events_; }

 private:
  void JoinWindows();
  void JoinPlatform();
  void SayWhatWasMended();
  void LetGo(const forms::Window& window);
  void PrintFace(const forms::Window& window, const std::function<void(QWidget&)>& print);
  void Settle();
  void End();
  QWidget* FrontFrame() const;

  DesktopPlatform platform_;
  files::FileSystem files_;
  ui::Program program_;
  Events events_;
  Timers timers_;
  PaintStart paint_start_{program_, events_};
  Drafts drafts_{program_, files_, platform_, events_};
  WriteNotice write_notice_{files_.StartFolder()};
  std::vector<std::unique_ptr<WindowView>> windows_;
  std::vector<std::string> bench_controls_;
  std::unique_ptr<DeskView> desk_;
  std::unique_ptr<BenchView> bench_;
  QPointer<QWidget> used_last_;
  QObject receiver_;  // of signals; destroyed first, so that none arrives while the rest is destroyed
};

}  // namespace lectern::desktop
