// The desktop program from its first line to its exit status.
#pragma once

#include <string>
#include <vector>

namespace lectern::desktop {

// Runs the program in the folder it is started in. The controls named in `bench` lie off the main window and
// are shown in a second one.
int RunApplication(char** arguments, const std::vector<std::string>& bench);

}  // namespace lectern::desktop
