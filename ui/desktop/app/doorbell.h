// How a second start on a folder reaches the program that is open there: it rings, the first one comes
// forward and says who it is. The bell hangs in the person's own run-time folder, under a name made from the
// data folder's path, so that folders and persons do not disturb one another.
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QLocalServer>
#include <QString>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

namespace lectern::desktop {

// The desktop's leave to come to the front, which it gives to what a person starts. The windowing system's
// layer takes it as soon as there is an application, so it is asked for before.
QByteArray LeaveToComeForward();

// The name of the program that answers at the folder; none where none does. One try.
std::optional<QString> Ring(const std::string& folder, const QByteArray& leave,
                            const QDeadlineTimer& patience);

// Lets a window come to the front, out of the task bar where it lies there.
void ComeForward(QWidget& window);

class Doorbell {
 public:
  // The folder must be the caller's own: a bell that a crash left there is taken down.
  Doorbell(const std::string& folder, QString name, std::function<void()> come_forward);

 private:
  void Answer();

  QString name_;
  std::function<void()> come_forward_;
  QLocalServer server_;
};

}  // namespace lectern::desktop
