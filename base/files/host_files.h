// The host's file calls that the classes of this folder share, and the host's failures as run-time errors.
#pragma once

#include <cerrno>
#include <cstdint>
#include <dirent.h>
#include <string>
#include <string_view>
#include <sys/stat.h>

#include "base/files/descriptor.h"

namespace lectern::files {

// Throws the RunTimeError that stands for the host's error number.
[[noreturn]] void FailWith(int host_error);

// The path of the folder that a file is in; "" for the root.
std::string FolderOf(const std::string& path);

// What exists at a path: there, where a link leads to; or the link itself.
struct Standing {
  bool there = false;
  bool folder = false;
  bool file = false;
  bool link = false;
  struct stat status = {};

  mode_t Permissions() const { return status.st_mode & 0777U; }
};

Standing At(const std::string& path);
Standing ItselfAt(const std::string& path);

// Without links; "" where nothing is.
std::string RealPath(const std::string& path);

// In bytes; 0 where no file is.
std::uint64_t LengthAt(const std::string& path);

// Whether both are files that can be read and have the same bytes.
bool HoldTheSame(const std::string& path, const std::string& other);

// Never blocks: a pipe or a device does not count as a file.
OpenFile OpenRegular(const std::string& path, int flags);

// The entry of a folder that equals the element without regard to case and to how names are stored; the first
// in code order if there are several, "" if there is none.
std::string EntryLike(const std::string& folder, std::string_view element);

// A folder that is not there has no entries; one that cannot be read fails.
template <class Take>
void ForEachEntry(const std::string& folder, Take take) {
  DIR* const entries = ::opendir(folder.empty() ? "/" : folder.c_str());
  if (entries == nullptr && (errno == ENOENT || errno == ENOTDIR)) return;
  if (entries == nullptr) FailWith(errno);
  errno = 0;
  while (const dirent* entry = ::readdir(entries)) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") take(*entry, name);
    errno = 0;
  }
  const int failure = errno;
  ::closedir(entries);
  if (failure != 0) FailWith(failure);
}

}  // namespace lectern::files
