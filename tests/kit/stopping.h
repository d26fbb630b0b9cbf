// Stops the program ahead of a file operation, as a crash or a full disk does, and holds what is then in the
// data folder against what the person had before.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <type_traits>
#include <unistd.h>

#include "tests/kit/session.h"

namespace lectern {

// Runs an action in a process of its own. The action's own status where it has one, 255 where an expectation
// failed in it, -1 where it crashed.
template <class Action>
int InChild(Action action) {
  const bool has_failed = testing::Test::HasFailure();
  const pid_t child = ::fork();
  if (child == 0) {
    int status = 0;
    if constexpr (std::is_void_v<std::invoke_result_t<Action>>) {
      action();
    } else {
      status = action();
    }
    constexpr int kFailed = 255;
    ::_exit(testing::Test::HasFailure() && !has_failed ? kFailed : status);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// From now on this process cannot write files larger than this; RLIM_INFINITY lifts the limit. SIGXFSZ is to
// be ignored.
void LimitFiles(rlim_t bytes);

enum class Stop {
  kKill,       // the process ends ahead of the n-th operation
  kFullOnce,   // the n-th operation, of any kind, fails with a full disk
  kFullOnward  // from the n-th write on nothing more is written; deleting and renaming still work
};

// What a person does in the small world, act by act.
struct Task {
  const char* name;
  Steps way;                      // up to where something is about to be written
  Steps acts;                     // each is stopped at every operation
  const char* built = "";         // a file that an act builds up piece by piece
  bool all_books = false;         // all 66 books are there for the one-pass builder
  bool ignores_failures = false;  // the program says nothing of a full disk
};

inline void PrintTo(const Task& task, std::ostream* stream) { *stream << task.name; }

// Plays the task again and again in a fresh small world, and stops it one operation later each time. After
// each stop every file in the folder is whole, as it was before the act or as the act leaves it, or is
// missing or being built; what it held before the act is in the file or under `backup`; and the program
// starts again.
void StopEverywhere(const Task& task, Stop stop);

// Plays steps in a folder and kills the program ahead of the n-th file operation; whether it came so far.
bool KillAt(const std::string& folder, const Steps& steps, int n);

}  // namespace lectern
