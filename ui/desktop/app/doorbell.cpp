#include "ui/desktop/app/doorbell.h"

#include <QCryptographicHash>
#include <QLocalSocket>
#include <QStandardPaths>
#include <filesystem>
#include <system_error>
#include <utility>

namespace lectern::desktop {

namespace {

constexpr const char* kLeave = "XDG_ACTIVATION_TOKEN";

QString AddressOf(const std::string& folder) {
  std::error_code failure;
  const std::filesystem::path canonical = std::filesystem::weakly_canonical(folder, failure);
  const QByteArray path = QByteArray::fromStdString(failure ? folder : canonical.string());
  const QByteArray mark = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().left(16);
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/lectern-" +
         QString::fromLatin1(mark);
}

}  // namespace

QByteArray LeaveToComeForward() {
  const QByteArray leave = qgetenv(kLeave);
  return leave.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : leave;
}

std::optional<QString> Ring(const std::string& folder, const QByteArray& leave,
                            const QDeadlineTimer& patience) {
  const auto remaining = [&patience] { return static_cast<int>(patience.remainingTime()); };
  QLocalSocket bell;
  bell.connectToServer(AddressOf(folder));
  if (!bell.waitForConnected(remaining())) return std::nullopt;
  bell.write(leave + '\n');
  while (!bell.canReadLine()) {
    if (!bell.waitForReadyRead(remaining())) return std::nullopt;
  }
  return QString::fromUtf8(bell.readLine().trimmed());
}

void ComeForward(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

Doorbell::Doorbell(const std::string& folder, QString name, std::function<void()> come_forward)
    : name_(std::move(name)), come_forward_(std::move(come_forward)) {
  const QString address = AddressOf(folder);
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { Answer(); });
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  QLocalServer::removeServer(address);
  server_.listen(address);
}

void Doorbell::Answer() {
  while (QLocalSocket* const caller = server_.nextPendingConnection()) {
    QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
    const auto answer = [this, caller] {
      if (!caller->canReadLine()) return;
      // The layer of the windowing system looks for it there when a window asks for the front.
      const QByteArray leave = caller->readLine().trimmed();
      if (!leave.isEmpty()) qputenv(kLeave, leave);
      come_forward_();
      caller->write(name_.toUtf8() + '\n');
      caller->disconnectFromServer();
    };
    QObject::connect(caller, &QLocalSocket::readyRead, caller, answer);
    answer();
  }
}

}  // namespace lectern::desktop
