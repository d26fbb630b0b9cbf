#include "ui/desktop/app/end_signals.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace lectern::desktop {

namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

// A handler of signals may do little more than write a byte: the number of the signal.
int write_end = -1;

extern "C" void PassOn(int signal) {
  const auto number = static_cast<unsigned char>(signal);
  if (::write(write_end, &number, 1) != 1) ::_exit(128 + signal);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> prepare) : prepare_(std::move(prepare)) {
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { prepare_(); }, Qt::DirectConnection);
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
  write_end = ends[1];
  auto* const notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this, read_end = ends[0]] {
    unsigned char signal = 0;
    if (::read(read_end, &signal, 1) == 1) End(signal);
  });
  struct sigaction action = {};
  action.sa_handler = PassOn;
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (const int signal : kSignals) {
    struct sigaction before = {};
    ::sigaction(signal, nullptr, &before);
    if (before.sa_handler != SIG_IGN) ::sigaction(signal, &action, nullptr);  // as under nohup
  }
}

EndSignals::~EndSignals() {
  for (const int signal : kSignals) std::signal(signal, SIG_DFL);
}

// Ends as the signal would have ended it, without running another handler.
void EndSignals::End(int signal) {
  prepare_();
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

}  // namespace lectern::desktop
