#include "base/files/file_system.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "base/errors.h"
#include "base/files/host_files.h"
#include "base/files/path_names.h"
#include "base/text/characters.h"

namespace lectern::files {

using base::ErrorNumber;
using base::RunTimeError;

FileSystem::FileSystem(std::string start_folder) : start_folder_(std::move(start_folder)) {}

void FileSystem::Announce(Operation operation, const std::string& path) const {
  if (before) before(operation, path);
}

namespace {

struct Place {
  std::string base;       // a host folder without a separator at its end
  std::string_view rest;  // the elements behind it
};

Place PlaceOf(std::string_view name, const std::string& start_folder) {
  if (name.starts_with(start_folder)) {
    const std::string_view rest = name.substr(start_folder.size());
    if (rest.empty() || IsSeparator(rest[0])) return {start_folder, rest};
  }
  if (!name.empty() && IsSeparator(name[0])) return {"", name};
  return {start_folder, name};
}

}  // namespace

std::string FileSystem::AsWritten(std::string_view name) const {
  auto [path, rest] = PlaceOf(name, start_folder_);
  for (const std::string_view element : Elements(rest)) {
    if (!IsAccepted(element)) throw RunTimeError(ErrorNumber::kBadFileName);
    path.append(1, '/').append(element);
  }
  return path.empty() ? "/" : path;
}

std::string FileSystem::HostPath(std::string_view name) const {
  if (std::string written = AsWritten(name); At(written).there) return written;
  auto [path, rest] = PlaceOf(name, start_folder_);
  const std::vector<std::string_view> elements = Elements(rest);
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const std::string exact = path + "/" + std::string(elements[i]);
    if (At(exact).there) {
      path = exact;
      continue;
    }
    const std::string like = EntryLike(path, elements[i]);
    const bool last = i + 1 == elements.size();
    if (like.empty() && (!last || !At(path.empty() ? "/" : path).folder)) {
      throw RunTimeError(ErrorNumber::kPathNotFound);
    }
    path.append(1, '/').append(like.empty() ? std::string(elements[i]) : like);
  }
  return path;
}

bool FileSystem::FileExists(std::string_view name) const {
  try {
    return At(HostPath(name)).file;
  } catch (const RunTimeError&) {
    return false;
  }
}

bool FileSystem::FolderExists(std::string_view name) const {
  try {
    return At(HostPath(name)).folder;
  } catch (const RunTimeError&) {
    return false;
  }
}

std::uint64_t FileSystem::Length(std::string_view name) const {
  const std::string path = HostPath(name);
  struct stat status = {};
  if (::stat(path.c_str(), &status) != 0) FailWith(errno);
  return static_cast<std::uint64_t>(status.st_size);
}

void FileSystem::Read(std::string_view name, Contents& contents) const {
  contents.size_ = 0;
  std::string path = AsWritten(name);
  Announce(Operation::kRead, path);
  OpenFile opened = OpenRegular(path, O_RDONLY);
  if (!opened.descriptor.IsOpen() && (errno == ENOENT || errno == ENOTDIR)) {
    path = HostPath(name);
    opened = OpenRegular(path, O_RDONLY);
  }
  if (!opened.descriptor.IsOpen()) FailWith(errno);
  const std::uint64_t length = opened.length;
  if (contents.capacity_ < length) {
    contents.capacity_ = 0;
    contents.room_ = std::make_unique_for_overwrite<char[]>(length);
    contents.capacity_ = length;
  }
  while (contents.size_ < length) {
    const ssize_t taken =
        ::read(opened.descriptor.Number(), contents.room_.get() + contents.size_, length - contents.size_);
    if (taken < 0 && errno == EINTR) continue;
    if (taken < 0) FailWith(errno);
    if (taken == 0) break;  // the file was cut short meanwhile
    contents.size_ += static_cast<std::size_t>(taken);
  }
}

Appending FileSystem::OpenForAppending(std::string_view name) const {
  std::string path = AsWritten(name);
  Announce(Operation::kAppend, path);
  OpenFile opened = OpenRegular(path, O_WRONLY | O_APPEND);
  if (!opened.descriptor.IsOpen() && (errno == ENOENT || errno == ENOTDIR)) {
    path = HostPath(name);
    opened = OpenRegular(path, O_WRONLY | O_APPEND | O_CREAT);
  }
  if (!opened.descriptor.IsOpen()) FailWith(errno);
  return {*this, std::move(opened.descriptor), path, opened.length};
}

void FileSystem::Delete(std::string_view name) const {
  std::string path = AsWritten(name);
  Announce(Operation::kDelete, path);
  int failure = ::unlink(path.c_str()) == 0 ? 0 : errno;
  if (failure == ENOENT || failure == ENOTDIR) {
    path = HostPath(name);
    failure = ::unlink(path.c_str()) == 0 ? 0 : errno;
  }
  if (failure == EISDIR) failure = ENOENT;  // a folder is no file of that name
  if (failure != 0) FailWith(failure);
}

void FileSystem::Rename(std::string_view from, std::string_view to) const {
  const std::string from_path = HostPath(from);
  const std::string to_path = HostPath(to);
  Announce(Operation::kRename, from_path);
  if (!At(from_path).there) throw RunTimeError(ErrorNumber::kFileNotFound);
  if (At(to_path).there) throw RunTimeError(ErrorNumber::kFileAlreadyExists);
  if (::rename(from_path.c_str(), to_path.c_str()) != 0) FailWith(errno);
}

// Writes a file beside another one, to be put in its place; gives back its path.
std::string FileSystem::WriteBeside(const std::string& path, std::string_view bytes) const {
  std::string fresh = path.substr(0, path.rfind('/')) + "/lectern-saving.tmp";
  ::unlink(fresh.c_str());
  try {
    Appending file = OpenForAppending(fresh);
    file.Write(bytes);
    file.Close();
  } catch (const RunTimeError&) {
    ::unlink(fresh.c_str());
    throw;
  }
  return fresh;
}

namespace {

void PutInPlace(const std::string& fresh, const std::string& path) {
  if (::rename(fresh.c_str(), path.c_str()) == 0) return;
  const int failure = errno;
  ::unlink(fresh.c_str());
  FailWith(failure);
}

}  // namespace

void FileSystem::Replace(std::string_view name, std::string_view bytes) const {
  const std::string path = HostPath(name);
  const std::string fresh = WriteBeside(path, bytes);
  Announce(Operation::kRename, path);
  PutInPlace(fresh, path);
}

void FileSystem::ReplaceKeepingBackup(std::string_view name, std::string_view bytes) const {
  const std::string path = HostPath(name);
  const std::string fresh = WriteBeside(path, bytes);
  if (At(path).file) DeleteKeepingBackup(name);
  Announce(Operation::kRename, path);
  PutInPlace(fresh, path);
}

// Within the start folder the place under `backup` is the same as outside it; a file from elsewhere takes its
// whole path along, so that two of one name do not meet. A backup's own is `backup/backup`.
std::string FileSystem::BackupOf(const std::string& path) const {
  const bool inside = path.starts_with(start_folder_ + "/");
  return start_folder_ + "/backup" + (inside ? path.substr(start_folder_.size()) : path);
}

// Puts a file in the place of another, whose folder need not be there yet.
void FileSystem::MoveOver(const std::string& path, const std::string& place) const {
  Announce(Operation::kRename, path);
  std::error_code failure;
  std::filesystem::create_directories(std::filesystem::path(place).parent_path(), failure);
  if (failure) FailWith(failure.value());
  std::filesystem::rename(path, place, failure);
  if (failure == std::errc::cross_device_link) {
    std::filesystem::copy_file(path, place, std::filesystem::copy_options::overwrite_existing, failure);
    if (!failure) std::filesystem::remove(path, failure);
  }
  if (failure) FailWith(failure.value());
}

void FileSystem::DeleteKeepingBackup(std::string_view name) const {
  const std::string path = HostPath(name);
  const Standing standing = At(path);
  if (!standing.there || standing.folder) throw RunTimeError(ErrorNumber::kFileNotFound);
  if (Length(name) == 0) {
    Delete(name);
    return;
  }
  constexpr int kVersions = 3;
  Keep(path, kVersions);
}

// Moves a file to its place in the backup, where it is the last of so many versions; the one that stands
// there goes on to the next place, unless it is the same. In the last place the longest stays.
void FileSystem::Keep(const std::string& path, int versions) const {
  const std::string place = BackupOf(path);
  const std::uint64_t length = LengthAt(place);
  if (versions == 1 && length > LengthAt(path)) return;
  if (versions > 1 && length > 0 && !HoldTheSame(path, place)) Keep(place, versions - 1);
  MoveOver(path, place);
}

namespace {

// The names in a folder of which `wanted` says yes; it is given the entry's name and whether it is a folder.
template <class Wanted>
std::vector<std::string> Names(const FileSystem& files, std::string_view folder, Wanted wanted) {
  std::vector<std::string> names;
  try {
    const std::string path = files.HostPath(folder);
    ForEachEntry(path, [&](const dirent& entry, std::string_view name) {
      const bool known = entry.d_type == DT_REG || entry.d_type == DT_DIR;
      const bool is_folder = known ? entry.d_type == DT_DIR : At(path + "/" + std::string(name)).folder;
      if (wanted(name, is_folder)) names.emplace_back(name);
    });
  } catch (const RunTimeError&) {
    return {};
  }
  std::sort(names.begin(), names.end(), text::LessFolded);
  return names;
}

}  // namespace

std::vector<std::string> FileSystem::Files(std::string_view folder, std::string_view pattern) const {
  return Names(*this, folder, [pattern](std::string_view name, bool is_folder) {
    return !is_folder && FitsPattern(name, pattern);
  });
}

std::vector<std::string> FileSystem::Folders(std::string_view folder) const {
  return Names(*this, folder,
               [](std::string_view name, bool is_folder) { return is_folder && !name.starts_with('.'); });
}

}  // namespace lectern::files
