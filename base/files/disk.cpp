#include "base/files/disk.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "base/files/host_files.h"

namespace lectern::files {

void Disk::Announce(Operation operation, const std::string& path) const {
  if (before) before(operation, path);
}

void Disk::Report(Change change) const {
  if (changed) changed(change);
}

void Disk::ChangedIn(const std::string& path) { folders_.insert(FolderOf(path)); }

OpenFile Disk::OpenForAppending(const std::string& path) const {
  Announce(Operation::kAppend, path);
  return OpenRegular(path, O_WRONLY | O_APPEND | O_NOFOLLOW);
}

Descriptor Disk::Create(const std::string& path, std::optional<mode_t> permissions, Lasting lasting) {
  Announce(Operation::kAppend, path);
  constexpr mode_t kOwn = 0600;
  constexpr mode_t kUsual = 0666;
  constexpr int kNew = O_WRONLY | O_APPEND | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
  Descriptor file(::open(path.c_str(), kNew, permissions ? kOwn : kUsual));
  if (!file.IsOpen()) FailWith(errno);
  // A host that has no such permissions keeps its own.
  if (permissions && ::fchmod(file.Number(), *permissions) != 0) errno = 0;
  if (lasting == Lasting::kYes) {
    files_.insert(path);
    ChangedIn(path);
  }
  Report({Change::Kind::kCreate, path});
  return file;
}

void Disk::Write(const Descriptor& file, const std::string& path, std::string_view bytes, Lasting lasting) {
  Announce(Operation::kWrite, path);
  if (lasting == Lasting::kYes) files_.insert(path);
  for (std::string_view left = bytes; !left.empty();) {
    const ssize_t written = ::write(file.Number(), left.data(), left.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) FailWith(errno);
    left.remove_prefix(static_cast<std::size_t>(written));
  }
  if (changed) changed({Change::Kind::kWrite, path, std::string(bytes)});
}

void Disk::Cut(const Descriptor& file, const std::string& path, std::uint64_t length) {
  if (::ftruncate(file.Number(), static_cast<off_t>(length)) != 0) FailWith(errno);
  Report({Change::Kind::kCut, path, {}, length});
}

void Disk::Rename(const std::string& from, const std::string& to, Lasting lasting) {
  Announce(Operation::kRename, from);
  if (::rename(from.c_str(), to.c_str()) != 0) FailWith(errno);
  if (lasting == Lasting::kYes) {
    if (files_.erase(from) > 0) files_.insert(to);
    ChangedIn(from);
    ChangedIn(to);
  }
  Report({Change::Kind::kRename, from, to});
}

void Disk::Remove(const std::string& path) {
  Announce(Operation::kDelete, path);
  if (::unlink(path.c_str()) != 0) FailWith(errno);
  files_.erase(path);
  Report({Change::Kind::kRemove, path});
}

void Disk::MakeFolder(const std::string& path) {
  constexpr mode_t kUsual = 0777;
  if (::mkdir(path.c_str(), kUsual) != 0) {
    if (errno == EEXIST) return;
    FailWith(errno);
  }
  ChangedIn(path);
  Report({Change::Kind::kMakeFolder, path});
}

namespace {

constexpr std::string_view kBeside = "lectern-saving-";
constexpr std::string_view kBesideEnding = ".tmp";

}  // namespace

std::string Disk::NameBeside(const std::string& path) {
  constexpr int kHexadecimal = 16;
  std::random_device chance;
  const auto number = (std::uint64_t{chance()} << 32U) | chance();
  std::array<char, kHexadecimal> digits{};
  char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number, kHexadecimal).ptr;
  return (FolderOf(path) + "/").append(kBeside).append(digits.data(), end).append(kBesideEnding);
}

bool Disk::IsNameBeside(std::string_view name) {
  return name.starts_with(kBeside) && name.ends_with(kBesideEnding);
}

void Disk::Sync(const std::string& path) {
  Announce(Operation::kSync, path);
  files_.erase(path);
  constexpr int kPlain = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  Descriptor file(::open(path.c_str(), O_RDONLY | kPlain));
  if (!file.IsOpen() && errno == EACCES) file = Descriptor(::open(path.c_str(), O_WRONLY | kPlain));
  if (!file.IsOpen() && errno == ENOENT) return;
  if (!file.IsOpen() || ::fsync(file.Number()) != 0) FailWith(errno);
  Report({Change::Kind::kSyncFile, path});
}

// Some file systems do not sync folders, and some folders cannot be read.
void Disk::SyncFolder(const std::string& path) const {
  Announce(Operation::kSync, path);
  const Descriptor folder(::open(path.empty() ? "/" : path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder.IsOpen()) return;
  const bool failed = ::fsync(folder.Number()) != 0;
  if (failed && errno != EINVAL && errno != ENOTSUP && errno != EBADF && errno != EROFS) FailWith(errno);
  Report({Change::Kind::kSyncFolder, path});
}

void Disk::Settle(const std::function<bool(const std::string& path)>& waits) {
  std::set<std::string> waiting;
  std::set<std::string> left = std::exchange(files_, {});
  const std::set<std::string> folders = std::exchange(folders_, {});
  for (const std::string& path : left) {
    if (waits(path)) {
      waiting.insert(path);
    } else {
      Sync(path);
    }
  }
  for (const std::string& folder : folders) SyncFolder(folder);
  files_.merge(waiting);
}

}  // namespace lectern::files
