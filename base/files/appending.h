// A file that grows behind its end.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/files/descriptor.h"
#include "base/files/disk.h"

namespace lectern::files {

class FileSystem;

// A file that is written to behind its end. What is written goes to the host at Flush and Close, or before
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
  struct Target {
    std::string path;           // which is written
    std::string place;          // of which the program knows the file
    std::string replaces = {};  // a file whose place the written one takes when it is closed
    Lasting lasting = Lasting::kYes;
  };

  Appending(FileSystem& files, Descriptor file, Target target, std::uint64_t length);
  void TakeBack();

  FileSystem* files_;
  Descriptor file_;
  Target target_;
  std::uint64_t length_at_opening_;
  std::string pending_;
};

}  // namespace lectern::files
