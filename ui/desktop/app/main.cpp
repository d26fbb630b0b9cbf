// The desktop program, built twice: `lectern` for readers, and `lectern-keeper` with a second window for the
// tools that stand off the main one. The current folder is the data folder; there are no options.
#include "ui/desktop/app/desktop.h"

int main(int /*count*/, char** arguments) {
#ifdef LECTERN_KEEPER
  return lectern::desktop::RunApplication(arguments, {"Command12", "Command38", "Frame5", "Frame2"});
#else
  return lectern::desktop::RunApplication(arguments, {});
#endif
}
