#include "ui/desktop/application.h"

#include <QApplication>
#include <QMessageBox>
#include <clocale>
#include <filesystem>

#include "ui/desktop/accessible.h"
#include "ui/desktop/desktop.h"
#include "ui/desktop/doorbell.h"
#include "ui/desktop/one_program.h"
#include "ui/desktop/theme.h"

namespace lectern::desktop {

namespace {

constexpr const char* kReader = "reader";
constexpr const char* kKeeper = "keeper";

// The folder is open already: the program there has come forward, or is told of. The exit status.
int Leave(const std::string& folder, const QString& name, const std::optional<QString>& answer) {
  if (!answer) {
    TellOfSilence(folder);
    return 1;
  }
  // The keeper's program holds all that the reader's does.
  if (name != kKeeper || answer == name) return 0;
  QMessageBox::information(nullptr, "Lectern 2",
                           "Lectern is open on this folder already, without the keeper's tools:\n\n" +
                               QString::fromStdString(folder) +
                               "\n\nEnd it, then start the keeper's program.");
  return 1;
}

}  // namespace

void PrepareApplication() {
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication::setApplicationName("lectern");
  QApplication::setDesktopFileName("lectern");
  QApplication::setQuitOnLastWindowClosed(false);
}

int RunApplication(char** arguments, const std::vector<std::string>& bench) {
  const QByteArray leave = LeaveToComeForward();
  PrepareApplication();
  int only_the_name = 1;
  QApplication application(only_the_name, arguments);
  std::setlocale(LC_NUMERIC, "C");  // files hold numbers in one form everywhere
  Dress();
  const std::string folder = std::filesystem::current_path().string();
  const QString name = bench.empty() ? kReader : kKeeper;
  FolderLock lock;
  const Arrival arrival = ArriveAt(folder, folder, lock, leave);
  if (!arrival.is_ours) return Leave(folder, name, arrival.answer);
  TellScreenReaders();
  Desktop desktop(folder, bench);
  const Doorbell doorbell(folder, name, [&desktop] { desktop.ComeToFront(); });
  return desktop.Run();
}

}  // namespace lectern::desktop
