// What a desktop's menu starts: makes sure that the person has a data folder, then becomes the program in it.
//
//   lectern-start                     starts the reader's program
//   lectern-start PROGRAM ARGUMENT…   starts another one, such as lectern-keeper
#include <QApplication>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

#include "ui/desktop/app/desktop.h"
#include "ui/desktop/app/first_start.h"
#include "ui/desktop/app/one_program.h"
#include "ui/desktop/app/theme.h"

namespace lectern::desktop {

namespace {

FirstStart::Outcome MakeOwnFolder(char** arguments, const std::string& folder) {
  const QByteArray token = TakeActivationToken();
  PrepareApplication();
  int only_the_name = 1;
  QApplication application(only_the_name, arguments);
  ApplyTheme();
  return FirstStart(folder, ProgramPath("lectern-make-data")).Run(token);
}

int Become(const std::string& program, char** arguments) {
  std::vector<char*> words = {const_cast<char*>(program.c_str())};
  for (; *arguments != nullptr; ++arguments) words.push_back(*arguments);
  words.push_back(nullptr);
  ::execvp(words.front(), words.data());
  std::cerr << "Cannot start " << program << ": " << std::strerror(errno) << '\n';
  return 1;
}

}  // namespace

}  // namespace lectern::desktop

int main(int count, char** arguments) {
  using namespace lectern::desktop;
  const std::string folder = OwnFolder();
  if (!HoldsTexts(folder)) {
    const FirstStart::Outcome outcome = MakeOwnFolder(arguments, folder);
    if (outcome != FirstStart::Outcome::kReady) return outcome == FirstStart::Outcome::kElsewhere ? 0 : 1;
  }
  if (::chdir(folder.c_str()) != 0) {
    std::cerr << "Cannot open the folder " << folder << ": " << std::strerror(errno) << '\n';
    return 1;
  }
  const bool is_named = count > 1;
  return Become(ProgramPath(is_named ? arguments[1] : "lectern"), arguments + (is_named ? 2 : 1));
}
