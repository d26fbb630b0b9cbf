// The program with its face: owns the program, shows its windows, brings in what a person does and gives the
// timers their ticks, until the program ends.
#pragma once

#include <QObject>
#include <QPointer>
#include <memory>
#include <string>
#include <vector>

#include "base/files/file_system.h"
#include "ui/desktop/app/events.h"
#include "ui/desktop/app/platform.h"
#include "ui/desktop/app/timers.h"
#include "ui/desktop/views/bench_view.h"
#include "ui/desktop/views/window_view.h"
#include "ui/program.h"

namespace lectern::desktop {

class Desktop {
 public:
  // An application must stand. The controls named in `bench` are shown in a second window.
  explicit Desktop(std::string data_folder, std::vector<std::string> bench = {});
  ~Desktop();

  // Starts the program and stays until it ends; the exit status.
  int Run();

  // The first half of it: whether there is anything to stay for.
  bool Start();

  // Brings the window that was used last, or the box that waits for an answer, before whatever covers it.
  void ComeToFront();

  ui::Program& Program() { return program_; }
  Events& GetEvents() { return events_; }

 private:
  void JoinWindows();
  void JoinPlatform();
  void ShowBench();
  void Settle();
  void Leave();
  QWidget* FrontFrame() const;

  DesktopPlatform platform_;
  files::FileSystem files_;
  ui::Program program_;
  Events events_;
  Timers timers_;
  std::vector<std::unique_ptr<WindowView>> windows_;
  std::vector<std::string> bench_controls_;
  std::unique_ptr<BenchView> bench_;
  QPointer<QWidget> used_last_;
  QObject receiver_;  // of signals that outlive nothing here
};

}  // namespace lectern::desktop
