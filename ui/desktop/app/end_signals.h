// The system's requests to end: SIGTERM, SIGHUP, SIGINT, and the end of the session.
#pragma once

#include <QObject>
#include <functional>

namespace lectern::desktop {

class EndSignals : public QObject {
 public:
  // Calls `prepare` ahead of the program's end, between two events of Qt. A second signal ends the program at
  // once. Requires: there is a QApplication, and no other EndSignals.
  explicit EndSignals(std::function<void()> prepare);
  ~EndSignals() override;

 private:
  void End(int signal);

  std::function<void()> prepare_;
};

}  // namespace lectern::desktop
