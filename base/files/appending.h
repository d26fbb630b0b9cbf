// A file that grows behind its end.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/files/descriptor.h"

namespace lectern::files {

class FileSystem;

// A file that is written to behind its end. What is written goes to the disk at Flush and Close, or before
// when it has grown large. A write that fails takes back what this opening wrote, so that a full disk leaves
// the file as it was.
class Appending {
 public:
  Appending(Appending&&) noexcept = default;
  Appending& operator=(Appending&&) = delete;
  Appending(const Appending&) = delete;
  Appending& operator=(const Appending&) = delete;
  ~Appending();  // closes; ignores a failure

  // Requires: neither closed nor failed before.
  void Write(std::string_view bytes);
  void Flush();
  void Close();

 private:
  friend class FileSystem;
  Appending(const FileSystem& files, Descriptor file, std::string path, std::uint64_t length);
  void LetGo();

  const FileSystem* files_;
  Descriptor file_;
  std::string path_;
  std::uint64_t length_at_opening_;
  std::string pending_;
};

}  // namespace lectern::files
