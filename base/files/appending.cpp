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

Appending::Appending(FileSystem& files, Descriptor file, Target target, std::uint64_t length)
    : files_(&files), file_(std::move(file)), target_(std::move(target)), length_at_opening_(length) {}

Appending::~Appending() {
  try {
    if (file_.IsOpen()) Close();
  } catch (...) {  // a destructor cannot report it; what was not written whole is taken back
  }
}

void Appending::TakeBack() {
  try {
    if (target_.replaces.empty()) {
      files_->disk.Cut(file_, target_.path, length_at_opening_);
    } else {
      files_->disk.Remove(target_.path);
    }
  } catch (const RunTimeError&) {  // nothing more can be done for a file that can neither grow nor shrink
  }
  files_->versions_.Failed(target_.place);
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
  if (pending_.empty()) return;
  try {
    files_->disk.Write(file_, target_.path, pending_, target_.lasting);
  } catch (const RunTimeError&) {
    TakeBack();
    throw;
  }
  files_->versions_.Written(target_.place);
  pending_.clear();
}

void Appending::Close() {
  Flush();
  if (!file_.IsOpen()) return;
  try {
    if (!target_.replaces.empty()) {
      files_->disk.Sync(target_.path);
      files_->disk.Rename(target_.path, target_.replaces);
    }
  } catch (const RunTimeError&) {
    TakeBack();
    throw;
  }
  if (::close(file_.Release()) != 0) FailWith(errno);
}

}  // namespace lectern::files
