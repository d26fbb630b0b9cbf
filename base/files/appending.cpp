#include "base/files/appending.h"

#include <cassert>
#include <cerrno>
#include <cstddef>
#include <unistd.h>
#include <utility>

#include "base/errors.h"
#include "base/files/file_system.h"
#include "base/files/host_files.h"

namespace lectern::files {

using base::RunTimeError;

Appending::Appending(const FileSystem& files, Descriptor file, std::string path, std::uint64_t length)
    : files_(&files), file_(std::move(file)), path_(std::move(path)), length_at_opening_(length) {}

Appending::~Appending() {
  try {
    if (file_.IsOpen()) Close();
  } catch (...) {  // a destructor cannot report it; what was not written whole is taken back
  }
}

void Appending::LetGo() {
  pending_.clear();
  file_ = Descriptor(-1);
}

void Appending::Write(std::string_view bytes) {
  assert(file_.IsOpen());
  constexpr std::size_t kLargest = std::size_t{1} << 18;
  pending_.append(bytes);
  if (pending_.size() > kLargest) Flush();
}

void Appending::Flush() {
  std::string_view left = pending_;
  if (left.empty()) return;
  try {
    files_->Announce(Operation::kWrite, path_);
    while (!left.empty()) {
      const ssize_t written = ::write(file_.Number(), left.data(), left.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) FailWith(errno);
      left.remove_prefix(static_cast<std::size_t>(written));
    }
  } catch (const RunTimeError&) {
    if (::ftruncate(file_.Number(), static_cast<off_t>(length_at_opening_)) != 0) {
      // Nothing more can be done for a file that can neither grow nor shrink.
    }
    LetGo();
    throw;
  }
  pending_.clear();
}

void Appending::Close() {
  Flush();
  const int descriptor = file_.Release();
  if (descriptor >= 0 && ::close(descriptor) != 0) FailWith(errno);
}

}  // namespace lectern::files
