// Keeps a data folder for one program at a time, as two would overwrite each other's files.
//
// The lock is the operating system's, on the folder itself: no file appears in the folder, the lock stays
// with the folder when it is renamed, and it ends with the process, so that a crash leaves none behind. A
// program that finds the folder locked calls the one that holds it, over a socket in the person's run-time
// folder; that one comes to the front and answers with its name.
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QLocalServer>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>

#include "base/files/descriptor.h"

namespace lectern::desktop {

// The activation token with which the desktop lets a program that a person started come to the front; empty
// where there is none. The windowing system's layer removes it when the application is made. Requires: there
// is no QApplication yet.
QByteArray TakeActivationToken();

// Brings a window to the front, also one that is minimised.
void BringToFront(QWidget& window);

class OneProgram {
 public:
  // `folder` is the path by which the programs know the folder; it need not exist. `name` is what this
  // program answers to others.
  OneProgram(std::string folder, QString name);

  enum class Outcome {
    kOurs,
    kAnswered,  // another program has it, and came to the front
    kSilent,    // another program has it and does not answer; the person has been told
  };

  // Tries to take the folder. The lock goes on the folder `locked`, which differs while the folder is being
  // made. Waits a few seconds at most for a program that is just starting or ending.
  Outcome Claim(const std::string& locked, const QByteArray& token);

  // The name of the program that answered.
  const QString& Answer() const { return answer_; }

  // From now on, calls `come_forward` whenever another program is started on the folder.
  // Requires: the folder is ours.
  void Listen(std::function<void()> come_forward);

 private:
  enum class Lock { kTaken, kHeldByOther, kUnknown };
  Lock TryLock(const std::string& locked);
  bool Call(const QByteArray& token, const QDeadlineTimer& patience);
  void AnswerCallers();

  const std::string folder_;
  const QString name_;
  QString answer_;
  files::Descriptor lock_{-1};
  std::function<void()> come_forward_;
  QLocalServer server_;
};

}  // namespace lectern::desktop
