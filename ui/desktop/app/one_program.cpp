#include "ui/desktop/app/one_program.h"

#include <QDir>
#include <QMessageBox>
#include <QThread>

#include "ui/desktop/app/doorbell.h"

namespace lectern::desktop {

Arrival ArriveAt(const std::string& folder, const std::string& locked, FolderLock& lock,
                 const QByteArray& leave) {
  constexpr int kPatience = 5000;  // milliseconds
  constexpr int kPause = 50;
  const QDeadlineTimer patience(kPatience);
  for (;;) {
    const FolderLock::Outcome outcome = lock.Take(locked);
    if (outcome == FolderLock::Outcome::kOurs) return {true, {}};
    const std::optional<QString> answer = Ring(folder, leave, patience);
    if (answer) return {false, answer};
    if (outcome == FolderLock::Outcome::kUnknown) return {true, {}};
    if (patience.hasExpired()) return {false, {}};
    QThread::msleep(kPause);
  }
}

void TellOfSilence(const std::string& folder) {
  QMessageBox::warning(nullptr, "Lectern 2",
                       "Lectern is open on this folder already, but does not answer:\n\n" +
                           QDir::toNativeSeparators(QString::fromStdString(folder)) +
                           "\n\nTwo programs would lose what the other writes. End the first one, or have "
                           "whoever started it do so, and start again.");
}

}  // namespace lectern::desktop
