// What stops a program: a process of its own, killed ahead of a file operation, or a disk that is full.
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <type_traits>
#include <unistd.h>
#include <utility>
#include <vector>

#include "base/files/file_system.h"
#include "base/run_time_error.h"
#include "ui/headless/driver.h"

namespace lectern {

constexpr int kStopped = 77;

// Runs an action in a process of its own, and gives the status that it ended with: the action's own where it
// has one, 255 where an expectation failed in it, -1 where it crashed.
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

// From now on this process is on a disk that holds files of so many bytes and no larger ones; RLIM_INFINITY
// lifts the limit. The signal SIGXFSZ is to be ignored.
inline void LimitFiles(rlim_t bytes) {
  rlimit limit{};
  ::getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = bytes;
  ::setrlimit(RLIMIT_FSIZE, &limit);
}

// Ends the process ahead of its n-th file operation from now on, counted from 1, as a power cut would. Reads
// in a row count as one: ahead of each the disk is the same.
inline void KillAheadOf(
    files::FileSystem& files, int n, const std::function<int()>& status = [] { return kStopped; }) {
  files.before = [left = n, reads = false, status](files::Operation operation, const std::string&) mutable {
    const bool read_again = std::exchange(reads, operation == files::Operation::kRead) && reads;
    if (!read_again && --left == 0) ::_exit(status());
  };
}

// The n-th file operation from now on, counted from 1, whichever it is, finds the disk full.
inline void FailAt(files::FileSystem& files, int n, bool& failed) {
  files.before = [left = n, &failed](files::Operation, const std::string&) mutable {
    if (--left != 0) return;
    failed = true;
    throw base::RunTimeError(base::ErrorNumber::kDiskFull);
  };
}

// From the n-th write on nothing more goes to the disk; deleting and renaming still work. `full_at` then
// names the file that could not be written first.
inline void FillDiskAheadOf(files::FileSystem& files, int n, std::string& full_at) {
  files.before = [left = n, &full_at](files::Operation operation, const std::string& path) mutable {
    if (operation != files::Operation::kWrite || --left > 0) return;
    if (full_at.empty()) full_at = path;
    throw base::RunTimeError(base::ErrorNumber::kDiskFull);
  };
}

using Steps = std::vector<std::string>;

inline void Play(headless::Driver& driver, const Steps& steps) {
  for (const std::string& step : steps) driver.Execute(step);
}

enum class Stop { kKilled, kFullDisk };

// Lets a person come to an act and carry it out, and stops the act ahead of its n-th file operation, counted
// from 1; whether it came to its end before. What is to be killed runs in a process of its own.
inline bool PlaysToItsEnd(const std::string& folder, const Steps& way, const Steps& act, Stop stop, int n) {
  const auto play = [&] {
    headless::Driver driver(folder, [](const std::string&) {});
    Play(driver, way);
    bool failed = false;
    if (stop == Stop::kKilled) KillAheadOf(driver.Files(), n);
    if (stop == Stop::kFullDisk) FailAt(driver.Files(), n, failed);
    Play(driver, act);
    return failed ? kStopped : 0;
  };
  const int status = stop == Stop::kKilled ? InChild(play) : play();
  EXPECT_TRUE(status == 0 || status == kStopped) << "the program crashed";
  return status == 0;
}
constexpr int kNever = 0;

}  // namespace lectern
