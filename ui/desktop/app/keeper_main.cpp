// The program for whoever keeps the data: the same, with one more window for the tools that lie off the main
// one.
#include "ui/desktop/app/application.h"

int main(int /*argc*/, char** argv) {
  return lectern::desktop::RunApplication(argv, {"Command12", "Command38", "Frame5", "Frame2"});
}
