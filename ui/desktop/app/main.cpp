// The program on the desktop. The folder it is started in is the data folder; there are no options.
#include "ui/desktop/app/application.h"

int main(int /*argc*/, char** argv) { return lectern::desktop::RunApplication(argv, {}); }
