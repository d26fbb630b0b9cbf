// Plays or records a story (see story.h) in a temporary folder, of which nothing stays.
//
// usage: story-runner TESTS_FOLDER REAL_DATA_FOLDER STORY [record]
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/kit/story.h"

int main(int count, char** arguments) {
  namespace fs = std::filesystem;
  namespace kit = lectern::kit;
  if (count != 4 && count != 5) return 2;
  std::string around = (fs::temp_directory_path() / "lectern-story-XXXXXX").string();
  if (::mkdtemp(around.data()) == nullptr) return 2;
  // The story plays in a process of its own, so that the folder goes also where that one crashes.
  const pid_t child = ::fork();
  if (child == 0) {
    const kit::StoryFolder folder(fs::path(around) / "data", fs::absolute(arguments[1]) / "data",
                                  arguments[2]);
    kit::Story story(arguments[3], folder, count == 5 ? kit::Mode::kRecord : kit::Mode::kPlay);
    return story.Play() ? 0 : 1;
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  fs::remove_all(around);
  if (WIFEXITED(status)) return WEXITSTATUS(status);
  std::cout << arguments[3] << ": the program crashed with signal " << WTERMSIG(status) << "\n";
  return 1;
}
