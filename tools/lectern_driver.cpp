// The program without a screen: commands from standard input, one a line; what happens to standard output.
// The current directory is the data folder.
#include <filesystem>
#include <iostream>
#include <string>

#include "ui/headless/driver.h"

int main() {
  lectern::headless::Driver driver(std::filesystem::current_path().string(),
                                   [](const std::string& line) { std::cout << line << '\n'; });
  std::string line;
  while (!driver.WantsToQuit() && std::getline(std::cin, line)) {
    driver.Execute(line);
    std::cout << std::flush;
  }
  return driver.ExitStatus();
}
