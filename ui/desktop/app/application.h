// The desktop program from its first line to its exit status.
#pragma once

#include <string>
#include <vector>

namespace lectern::desktop {

// What holds for every program with a window of Lectern's; before there is an application.
void PrepareApplication();

// Runs the program in the folder it is started in. Where one is open on that folder already, it comes
// forward, and this one ends. The controls named in `bench` lie off the main window and are shown in a second
// one.
int RunApplication(char** arguments, const std::vector<std::string>& bench);

}  // namespace lectern::desktop
