// Stops the program at a file operation, as a crash, a full disk or a power cut does, starts it again, and
// holds what is then in the data folder against what the person had before.
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
  kKill,        // the process ends behind the n-th change
  kFullOnce,    // the n-th operation, of any kind, fails with a full disk
  kFullOnward,  // from the n-th write on nothing more is written; deleting and renaming still work
  kPowerCut     // the computer ends behind the n-th change; what was not synced may be on the disk or not
};

// What a person does in the small world, act by act.
struct Task {
  const char* name;
  Steps way;                      // up to where something is about to be written
  Steps acts;                     // each is stopped at every operation
  bool all_books = false;         // all 66 books are there for the one-pass builder
  bool ignores_failures = false;  // the program says nothing of a full disk
};

inline void PrintTo(const Task& task, std::ostream* stream) { *stream << task.name; }

// Plays the task again and again in a fresh small world, stops it one operation later each time, and starts
// the program again. Then every file in the folder is as it was before the act or as the act leaves it, or
// has grown by a part of what the act writes behind its end; what it held before the act is in the file or
// under `backup`; and no fewer whole versions of it are there than before. Returns the number of stops, or of
// different states that power cuts may leave.
int StopEverywhere(const Task& task, Stop stop);

// Plays steps in a folder and kills the program behind the n-th change; whether it came so far.
bool KillAt(const std::string& folder, const Steps& steps, int n);

}  // namespace lectern
