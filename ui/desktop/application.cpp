#include "ui/desktop/application.h"

#include <QApplication>
#include <clocale>
#include <filesystem>

#include "ui/desktop/accessible.h"
#include "ui/desktop/desktop.h"
#include "ui/desktop/theme.h"

namespace lectern::desktop {

int RunApplication(char** arguments, const std::vector<std::string>& bench) {
  // A stroke of the brush wants every movement of the mouse.
  QApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication::setApplicationName("lectern");
  QApplication::setDesktopFileName("lectern");
  QApplication::setQuitOnLastWindowClosed(false);
  int only_the_name = 1;
  QApplication application(only_the_name, arguments);
  std::setlocale(LC_NUMERIC, "C");  // files hold numbers in one form everywhere
  Dress();
  TellScreenReaders();
  Desktop desktop(std::filesystem::current_path().string(), bench);
  return desktop.Run();
}

}  // namespace lectern::desktop
