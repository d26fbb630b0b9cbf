#include "ui/desktop/app/one_program.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>
#include <QMessageBox>
#include <QStandardPaths>
#include <QThread>
#include <cassert>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace lectern::desktop {

namespace {

constexpr const char* kActivationToken = "XDG_ACTIVATION_TOKEN";

// The socket of a data folder. Its name depends on the folder's path, and it is in the person's own run-time
// folder, so that neither folders nor users share one.
QString SocketOf(const std::string& folder) {
  std::error_code failure;
  const std::filesystem::path canonical = std::filesystem::weakly_canonical(folder, failure);
  const QByteArray path = QByteArray::fromStdString(failure ? folder : canonical.string());
  const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().left(16);
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/lectern-" +
         QString::fromLatin1(hash);
}

void ReportSilence(const std::string& folder) {
  QMessageBox::warning(nullptr, "Lectern 2",
                       "Lectern is already open on this folder, but does not answer:\n\n" +
                           QDir::toNativeSeparators(QString::fromStdString(folder)) +
                           "\n\nClose its window, or end the program \"lectern\" in your system's list of "
                           "running programs, and "
                           "start again. If someone else opened the folder, ask them to close Lectern.");
}

}  // namespace

QByteArray TakeActivationToken() {
  assert(QCoreApplication::instance() == nullptr);
  const QByteArray token = qgetenv(kActivationToken);
  return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

void BringToFront(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

OneProgram::OneProgram(std::string folder, QString name)
    : folder_(std::move(folder)), name_(std::move(name)) {}

OneProgram::Outcome OneProgram::Claim(const std::string& locked, const QByteArray& token) {
  constexpr int kPatience = 5000;  // milliseconds
  constexpr int kPause = 50;
  const QDeadlineTimer patience(kPatience);
  for (;;) {
    const Lock lock = TryLock(locked);
    if (lock == Lock::kTaken) return Outcome::kOurs;
    if (Call(token, patience)) return Outcome::kAnswered;
    // Some file systems have no locks. As no program answered, none is running.
    if (lock == Lock::kUnknown) return Outcome::kOurs;
    if (patience.hasExpired()) break;
    QThread::msleep(kPause);
  }
  ReportSilence(folder_);
  return Outcome::kSilent;
}

OneProgram::Lock OneProgram::TryLock(const std::string& locked) {
  const auto lock = [](const files::Descriptor& file) {
    if (!file.IsOpen()) return Lock::kUnknown;
    if (::flock(file.Number(), LOCK_EX | LOCK_NB) == 0) return Lock::kTaken;
    return errno == EWOULDBLOCK ? Lock::kHeldByOther : Lock::kUnknown;
  };
  files::Descriptor folder(::open(locked.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  files::Descriptor file(::open((locked + "/" + kLockFile).c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW,
                                S_IRUSR | S_IWUSR));
  const Lock of_file = lock(file);
  if (of_file == Lock::kHeldByOther) return of_file;
  // The owner holds both locks, if possible, and needs only the file's.
  const Lock of_folder = lock(folder);
  const Lock outcome = of_file == Lock::kTaken ? of_file : of_folder;
  if (outcome == Lock::kTaken) {
    lock_ = std::move(file);
    folder_lock_ = std::move(folder);
  }
  return outcome;
}

// Tries once. Returns whether another program answered.
bool OneProgram::Call(const QByteArray& token, const QDeadlineTimer& patience) {
  const auto remaining = [&patience] { return static_cast<int>(patience.remainingTime()); };
  QLocalSocket line;
  line.connectToServer(SocketOf(folder_));
  if (!line.waitForConnected(remaining())) return false;
  line.write(token + '\n');
  while (!line.canReadLine()) {
    if (!line.waitForReadyRead(remaining())) return false;
  }
  answer_ = QString::fromUtf8(line.readLine().trimmed());
  return true;
}

void OneProgram::Listen(std::function<void()> come_forward) {
  assert(!server_.isListening());
  come_forward_ = std::move(come_forward);
  const QString socket = SocketOf(folder_);
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { AnswerCallers(); });
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  QLocalServer::removeServer(socket);  // one that a crash left behind
  server_.listen(socket);
}

void OneProgram::AnswerCallers() {
  while (QLocalSocket* const caller = server_.nextPendingConnection()) {
    QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
    const auto answer = [this, caller] {
      if (!caller->canReadLine()) return;
      // Qt reads it there when a window asks to come to the front.
      const QByteArray token = caller->readLine().trimmed();
      if (!token.isEmpty()) qputenv(kActivationToken, token);
      come_forward_();
      caller->write(name_.toUtf8() + '\n');
      caller->disconnectFromServer();
    };
    QObject::connect(caller, &QLocalSocket::readyRead, caller, answer);
    answer();
  }
}

}  // namespace lectern::desktop
