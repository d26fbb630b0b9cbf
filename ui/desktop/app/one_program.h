// Reserves a data folder for one program at a time, as two programs would overwrite each other's files.
//
// The lock is a lock of the operating system on a file in the folder, which only its owner can open, so that
// nobody else can lock the owner out. It stays with the folder when it is renamed, and ends with the process,
// even after a crash. Whoever cannot have such a file locks the folder itself. A program that finds the
// folder locked calls the program that holds the lock, through a socket in the person's run-time folder. That
// program comes to the front and answers with its name.
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

// The activation token, with which the desktop lets a program that a person started come to the front; empty
// if there is none. Qt removes it from the environment when the application is created. Requires: there is no
// QApplication yet.
QByteArray TakeActivationToken();

// Brings a window to the front, even if it is minimised.
void BringToFront(QWidget& window);

class OneProgram {
 public:
  static constexpr const char* kLockFile = ".lectern.lock";

  // `folder` is the path by which the programs know the folder; it need not exist. `name` is what this
  // program answers to others.
  OneProgram(std::string folder, QString name);

  enum class Outcome {
    kOurs,
    kAnswered,  // another program has it, and has come to the front
    kSilent,    // another program has it and does not answer; the person has been told
  };

  // Tries to take the folder by locking `locked`, which is a different folder while the data folder is being
  // made. Waits at most a few seconds for a program that is just starting or ending.
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
  files::Descriptor folder_lock_{-1};
  std::function<void()> come_forward_;
  QLocalServer server_;
};

}  // namespace lectern::desktop
