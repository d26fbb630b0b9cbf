// The program on the desktop. The folder it is started in is the data folder; there are no options.
#include <QApplication>
#include <clocale>
#include <filesystem>

#include "ui/desktop/accessible.h"
#include "ui/desktop/desktop.h"
#include "ui/desktop/theme.h"

int main(int /*argc*/, char** argv) {
  // A stroke of the brush wants every movement of the mouse.
  QApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication::setApplicationName("lectern");
  QApplication::setDesktopFileName("lectern");
  QApplication::setQuitOnLastWindowClosed(false);
  int only_the_name = 1;
  QApplication application(only_the_name, argv);
  std::setlocale(LC_NUMERIC, "C");  // files hold numbers in one form everywhere
  lectern::desktop::Dress();
  lectern::desktop::TellScreenReaders();
  lectern::desktop::Desktop desktop(std::filesystem::current_path().string());
  return desktop.Run();
}
