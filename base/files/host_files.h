// The host's file calls as the rooms of this folder share them, and the host's failures as run-time errors.
#pragma once

#include <cstdint>
#include <dirent.h>
#include <string>
#include <string_view>

#include "base/files/descriptor.h"

namespace lectern::files {

// Throws the RunTimeError that stands for the host's error number.
[[noreturn]] void FailWith(int host_error);

// What exists at a path.
struct Standing {
  bool there = false;
  bool folder = false;
  bool file = false;
};

Standing At(const std::string& path);

// In bytes; 0 where no file is.
std::uint64_t LengthAt(const std::string& path);

// Whether both are files that can be read and have the same bytes.
bool HoldTheSame(const std::string& path, const std::string& other);

struct OpenFile {
  Descriptor descriptor;  // not open: errno says why
  std::uint64_t length = 0;
};

// Never blocks: a pipe or a device does not count as a file.
OpenFile OpenRegular(const std::string& path, int flags);

// The entry of a folder that equals the element without regard to case; the first in code order if there are
// several, "" if there is none.
std::string EntryLike(const std::string& folder, std::string_view element);

template <class Take>
void ForEachEntry(const std::string& folder, Take take) {
  DIR* const entries = ::opendir(folder.empty() ? "/" : folder.c_str());
  if (entries == nullptr) return;
  while (const dirent* entry = ::readdir(entries)) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") take(*entry, name);
  }
  ::closedir(entries);
}

}  // namespace lectern::files
