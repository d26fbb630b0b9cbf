#include "ui/desktop/app/application.h"

#include <QApplication>
#include <QMessageBox>
#include <clocale>
#include <filesystem>

#include "ui/desktop/app/desktop.h"
#include "ui/desktop/app/doorbell.h"
#include "ui/desktop/app/one_program.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/accessible.h"

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

// Places are measured for letters at 96 dots an inch. Where a person has asked for more dots to the letters,
// the whole window grows with them.
void GrowWithLetters() {
  constexpr double kDotsPerInch = 96;
  const double dots = qEnvironmentVariable("QT_FONT_DPI").toDouble();
  if (dots <= 0) return;
  const double factor = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble();
  qputenv("QT_SCALE_FACTOR", QByteArray::number((factor > 0 ? factor : 1) * dots / kDotsPerInch));
  qputenv("QT_FONT_DPI", QByteArray::number(kDotsPerInch));
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");  // the letters' dots already count the screen's
}

}  // namespace

void PrepareApplication() {
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication::setApplicationName("lectern");
  QApplication::setDesktopFileName("lectern");
  QApplication::setQuitOnLastWindowClosed(false);
  GrowWithLetters();
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
