#include "base/files/file_system.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <new>
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

FileSystem::FileSystem(std::string start_folder)
    : start_folder_(std::move(start_folder)), versions_(disk, start_folder_) {}

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
    path.append(1, '/').append(StoredName(element));
  }
  return path.empty() ? "/" : path;
}

std::string FileSystem::HostPath(std::string_view name) const {
  if (std::string written = AsWritten(name); At(written).there) return written;
  auto [path, rest] = PlaceOf(name, start_folder_);
  const std::vector<std::string_view> elements = Elements(rest);
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const std::string exact = path + "/" + StoredName(elements[i]);
    if (At(exact).there) {
      path = exact;
      continue;
    }
    const std::string like = EntryLike(path, elements[i]);
    const bool last = i + 1 == elements.size();
    if (like.empty() && (!last || !At(path.empty() ? "/" : path).folder)) {
      throw RunTimeError(ErrorNumber::kPathNotFound);
    }
    path = like.empty() ? exact : path + "/" + like;
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

Descriptor FileSystem::Open(std::string_view name) const {
  return std::move(OpenRegular(HostPath(name), O_RDONLY).descriptor);
}

void FileSystem::Read(std::string_view name, Contents& contents) const {
  contents.size_ = 0;
  std::string path = AsWritten(name);
  disk.Announce(Operation::kRead, path);
  OpenFile opened = OpenRegular(path, O_RDONLY);
  if (!opened.descriptor.IsOpen() && (errno == ENOENT || errno == ENOTDIR)) {
    path = HostPath(name);
    opened = OpenRegular(path, O_RDONLY);
  }
  if (!opened.descriptor.IsOpen()) FailWith(errno);
  const std::uint64_t length = opened.length;
  if (contents.capacity_ < length) {
    contents.capacity_ = 0;
    try {
      contents.room_ = std::make_unique_for_overwrite<char[]>(length);
    } catch (const std::bad_alloc&) {
      throw RunTimeError(ErrorNumber::kOutOfMemory);
    }
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

// A folder within the start folder may not lead out of it.
void FileSystem::RequireOwnFolder(const std::string& path) const {
  if (!path.starts_with(start_folder_ + "/")) return;
  const std::string folder = FolderOf(path);
  std::string stretch = start_folder_;
  bool has_link = false;
  for (const std::string_view element : Elements(std::string_view(folder).substr(start_folder_.size()))) {
    stretch.append(1, '/').append(element);
    has_link = has_link || element == ".." || ItselfAt(stretch).link;
  }
  if (!has_link) return;
  const std::string real = RealPath(start_folder_);
  if (!(RealPath(folder) + "/").starts_with(real + "/")) throw RunTimeError(ErrorNumber::kPermissionDenied);
}

FileSystem::Writable FileSystem::PathToWrite(std::string_view name) const {
  std::string path = HostPath(name);
  RequireOwnFolder(path);
  const Standing itself = ItselfAt(path);
  if (!itself.link) return {path, path};
  const std::string target = RealPath(path);
  const Standing file = ItselfAt(target);
  const uid_t person = ::geteuid();
  if (!FitsPattern(path, "*.not") || !file.file || file.status.st_uid != person ||
      itself.status.st_uid != person) {
    throw RunTimeError(ErrorNumber::kPermissionDenied);
  }
  return {target, path};
}

Appending FileSystem::OpenForAppending(std::string_view name, Lasting lasting) {
  const Writable writable = PathToWrite(name);
  try {
    if (links_.erase(writable.place) > 0) return OpenReplacing(writable);
    OpenFile opened = disk.OpenForAppending(writable.path);
    if (!opened.descriptor.IsOpen() && errno == ENOENT) {
      const auto permissions = versions_.PermissionsOf(writable.place);
      opened.descriptor = disk.Create(writable.path, permissions, lasting);
    }
    if (!opened.descriptor.IsOpen()) FailWith(errno);
    return {*this, std::move(opened.descriptor), {writable.path, writable.place, "", lasting}, opened.length};
  } catch (const RunTimeError&) {
    versions_.Failed(writable.place);
    throw;
  }
}

Appending FileSystem::OpenReplacing(const Writable& writable) {
  const std::string fresh = Disk::NameBeside(writable.path);
  Descriptor file = disk.Create(fresh, ItselfAt(writable.path).Permissions(), Lasting::kYes);
  return {*this, std::move(file), {fresh, writable.place, writable.path}, 0};
}

void FileSystem::Delete(std::string_view name) {
  std::string path = AsWritten(name);
  if (!ItselfAt(path).there) path = HostPath(name);
  RequireOwnFolder(path);
  if (ItselfAt(path).folder) throw RunTimeError(ErrorNumber::kFileNotFound);
  disk.Remove(path);
}

void FileSystem::Rename(std::string_view from, std::string_view to) {
  const std::string from_path = HostPath(from);
  const std::string to_path = HostPath(to);
  RequireOwnFolder(from_path);
  RequireOwnFolder(to_path);
  if (!ItselfAt(from_path).there) throw RunTimeError(ErrorNumber::kFileNotFound);
  if (ItselfAt(to_path).there) throw RunTimeError(ErrorNumber::kFileAlreadyExists);
  try {
    if (ItselfAt(from_path).file) disk.Sync(from_path);
    if (const auto permissions = versions_.PermissionsOf(to_path)) {
      ::chmod(from_path.c_str(), *permissions);  // where the host has permissions
    }
    disk.Rename(from_path, to_path);
  } catch (const RunTimeError&) {
    versions_.Failed(to_path);
    throw;
  }
  versions_.Written(to_path);
}

// Writes a file beside another one, to be put in its place; returns its path.
std::string FileSystem::WriteBeside(const std::string& path, std::string_view bytes, Lasting lasting) {
  std::string fresh = Disk::NameBeside(path);
  const Standing standing = ItselfAt(path);
  const auto permissions = standing.file ? std::optional(standing.Permissions()) : std::nullopt;
  const Descriptor file = disk.Create(fresh, permissions, lasting);
  try {
    disk.Write(file, fresh, bytes, lasting);
    if (lasting == Lasting::kYes) disk.Sync(fresh);
  } catch (const RunTimeError&) {
    ::unlink(fresh.c_str());
    throw;
  }
  return fresh;
}

void FileSystem::PutInPlace(const std::string& fresh, const std::string& path, Lasting lasting) {
  try {
    disk.Rename(fresh, path, lasting);
  } catch (const RunTimeError&) {
    ::unlink(fresh.c_str());
    versions_.Failed(path);
    throw;
  }
  versions_.Written(path);
}

void FileSystem::Replace(std::string_view name, std::string_view bytes, Lasting lasting) {
  const std::string path = PathToWrite(name).path;
  PutInPlace(WriteBeside(path, bytes, lasting), path, lasting);
}

void FileSystem::ReplaceKeepingBackup(std::string_view name, std::string_view bytes) {
  const std::string path = PathToWrite(name).path;
  const std::string fresh = WriteBeside(path, bytes, Lasting::kYes);
  try {
    if (At(path).file) SetAside(name);
  } catch (const RunTimeError&) {
    ::unlink(fresh.c_str());
    throw;
  }
  PutInPlace(fresh, path, Lasting::kYes);
}

namespace {

void RequireFile(const Standing& standing) {
  if (!standing.there || standing.folder) throw RunTimeError(ErrorNumber::kFileNotFound);
}

}  // namespace

// Of a link only the link goes; the file behind it is elsewhere.
void FileSystem::DeleteKeepingBackup(std::string_view name) {
  const std::string path = HostPath(name);
  RequireOwnFolder(path);
  const Standing standing = ItselfAt(path);
  RequireFile(standing);
  if (standing.link || LengthAt(path) == 0) {
    disk.Remove(path);
  } else {
    versions_.Keep(path);
  }
}

void FileSystem::SetAside(std::string_view name) {
  const Writable writable = PathToWrite(name);
  RequireFile(At(writable.path));
  const bool is_link = writable.path != writable.place;
  const bool is_empty = LengthAt(writable.path) == 0;
  if (is_link) {
    if (!is_empty) versions_.SetAsideCopy(writable.path, writable.place);
    links_.insert(writable.place);
  } else if (is_empty) {
    disk.Remove(writable.path);
    versions_.Written(writable.path);
  } else {
    versions_.SetAside(writable.path);
  }
}

void FileSystem::BeginRewriting(std::string_view name) {
  const std::string path = PathToWrite(name).place;
  SetAside(name);
  versions_.Hold(path);
}

void FileSystem::EndRewriting(std::string_view name) { versions_.Release(HostPath(name)); }

void FileSystem::Settle() {
  const auto waits = [this](const std::string& path) { return versions_.IsHeld(path); };
  try {
    disk.Settle(waits);
    versions_.TakeIn();
    disk.Settle(waits);
  } catch (const RunTimeError&) {
    versions_.AllFailed();
    throw;
  }
}

std::vector<std::string> FileSystem::Mend() {
  std::vector<std::string> names;
  try {
    names = versions_.PutBack();
    for (const std::string& folder : {start_folder_, start_folder_ + "/pics"}) {
      if (!ItselfAt(folder).folder && folder != start_folder_) continue;
      std::vector<std::string> left;
      ForEachEntry(folder, [&](const dirent&, std::string_view name) {
        if (Disk::IsNameBeside(name)) left.push_back(folder + "/" + std::string(name));
      });
      for (const std::string& path : left) {
        if (ItselfAt(path).file) disk.Remove(path);
      }
    }
    Settle();
  } catch (const RunTimeError&) {
    // A folder that cannot be written stays as it is.
  }
  return names;
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
      if (!IsAccepted(name)) return;
      std::string plain = PlainName(name);
      if (wanted(plain, is_folder)) names.push_back(std::move(plain));
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
