// For tests of what a program leaves behind that is killed, or that comes to the end of a disk.
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lectern {

// Runs an action in a process of its own, and says how that ended; a failed expectation in it is 1, a crash
// -1.
inline int InChild(const std::function<void()>& action) {
  const pid_t child = ::fork();
  if (child == 0) {
    action();
    ::_exit(testing::Test::HasFailure() ? 1 : 0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// From now on this process is on a disk that holds files of so many bytes and no larger ones; RLIM_INFINITY
// lifts the limit. The signal SIGXFSZ is to be ignored.
inline void LimitFiles(rlim_t bytes) {
  rlimit limit{};
  ::getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = bytes;
  ::setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace lectern
