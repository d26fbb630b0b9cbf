// What stops a program: a process of its own, killed ahead of a file operation, or a disk that is full from
// a write on.
#pragma once

#include <functional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "core/files/file_system.h"
#include "core/run_time_error.h"

namespace lectern {

// Runs an action in a process of its own, and gives the status that it ended with; -1 where it crashed.
inline int StatusInChild(const std::function<int()>& action) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(action());
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Ends the process ahead of its n-th file operation from now on, counted from 1, as a power cut would. Reads
// in a row count as one: ahead of each the disk is the same.
inline void KillAheadOf(files::FileSystem& files, int n, const std::function<int()>& status) {
  files.before = [left = n, reads = false, status](files::Operation operation, const std::string&) mutable {
    const bool read_again = std::exchange(reads, operation == files::Operation::kRead) && reads;
    if (!read_again && --left == 0) ::_exit(status());
  };
}

// From the n-th write on nothing more goes to the disk; deleting and renaming still work. `full_at` then
// names the file that could not be written first.
inline void FillDiskAheadOf(files::FileSystem& files, int n, std::string& full_at) {
  files.before = [left = n, &full_at](files::Operation operation, const std::string& path) mutable {
    if (operation != files::Operation::kWrite || --left > 0) return;
    if (full_at.empty()) full_at = path;
    throw core::RunTimeError(core::ErrorNumber::kDiskFull);
  };
}

}  // namespace lectern
