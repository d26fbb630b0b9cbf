#include "base/files/versions.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

#include "base/errors.h"
#include "base/files/host_files.h"
#include "base/files/path_names.h"
#include "base/text/characters.h"

namespace lectern::files {

using base::ErrorNumber;
using base::RunTimeError;

namespace {

constexpr int kVersions = 3;
constexpr std::string_view kRewriting = "lectern-rewriting";
constexpr std::string_view kHalfWritten = "lectern-half-written";

}  // namespace

std::string Versions::Folder() const {
  const Standing standing = ItselfAt(folder_ + "/backup");
  return folder_ + (standing.there && !standing.folder ? "/lectern-backup" : "/backup");
}

// Within the data folder the place is the same as outside it; a file from elsewhere takes its whole path
// along, so that two of one name do not meet. A version's own place is one `backup` deeper.
std::string Versions::PlaceOf(const std::string& path) const { return PlaceIn("", path); }

std::string Versions::PlaceIn(std::string_view subfolder, const std::string& path) const {
  const bool inside = path.starts_with(folder_ + "/");
  std::string place = Folder();
  if (!subfolder.empty()) place.append(1, '/').append(subfolder);
  return place + (inside ? path.substr(folder_.size()) : path);
}

const Versions::Aside* Versions::Find(const std::string& path) const {
  const auto found = std::find_if(aside_.begin(), aside_.end(),
                                  [&](const Aside& aside) { return text::EqualFolded(aside.path, path); });
  return found == aside_.end() ? nullptr : &*found;
}

Versions::Aside* Versions::Find(const std::string& path) {
  return const_cast<Aside*>(std::as_const(*this).Find(path));
}

void Versions::MakeFoldersFor(const std::string& path) {
  const std::string last = FolderOf(path);
  std::string folder = folder_;
  for (const std::string_view element : Elements(std::string_view(last).substr(folder_.size()))) {
    folder.append(1, '/').append(element);
    const Standing standing = ItselfAt(folder);
    if (!standing.there) disk_.MakeFolder(folder);
    if (standing.there && !standing.folder) {
      throw RunTimeError(standing.link ? ErrorNumber::kPermissionDenied : ErrorNumber::kPathAccess);
    }
  }
}

// Puts a file in the place of another, whose folder need not exist yet.
void Versions::Move(const std::string& path, const std::string& place) {
  MakeFoldersFor(place);
  const auto device = [](const std::string& file) { return At(FolderOf(file)).status.st_dev; };
  if (device(path) == device(place)) {
    disk_.Rename(path, place);
  } else {
    Copy(path, place, ItselfAt(path).Permissions());
    disk_.Remove(path);
  }
}

void Versions::Copy(const std::string& path, const std::string& place, mode_t permissions) {
  constexpr std::size_t kPiece = std::size_t{1} << 18;
  MakeFoldersFor(place);
  const OpenFile source = OpenRegular(path, O_RDONLY);
  if (!source.descriptor.IsOpen()) FailWith(errno);
  const std::string fresh = Disk::NameBeside(place);
  const Descriptor copy = disk_.Create(fresh, permissions, Lasting::kYes);
  try {
    std::string piece(kPiece, '\0');
    for (;;) {
      const ssize_t taken = ::read(source.descriptor.Number(), piece.data(), piece.size());
      if (taken < 0 && errno == EINTR) continue;
      if (taken < 0) FailWith(errno);
      if (taken == 0) break;
      disk_.Write(copy, fresh, {piece.data(), static_cast<std::size_t>(taken)}, Lasting::kYes);
    }
    disk_.Sync(fresh);
    disk_.Rename(fresh, place);
  } catch (const RunTimeError&) {
    ::unlink(fresh.c_str());
    throw;
  }
}

// Moves a file to a place of versions; the one that stands there goes on to the next place, unless it is the
// same. In the last place the longest stays.
void Versions::KeepAt(const std::string& path, const std::string& place, int versions) {
  const std::uint64_t length = LengthAt(place);
  if (versions == 1 && length > LengthAt(path)) return;
  if (versions > 1 && length > 0 && !HoldTheSame(path, place)) KeepAt(place, PlaceOf(place), versions - 1);
  Move(path, place);
}

void Versions::Keep(const std::string& path) {
  disk_.Sync(path);
  KeepAt(path, PlaceOf(path), kVersions);
}

// The place in which a file is to wait. What waits there from an earlier run becomes a version.
std::string Versions::Waiting(const std::string& path) {
  std::string where = PlaceIn(kRewriting, path);
  if (LengthAt(where) > 0) KeepAt(where, PlaceOf(path), kVersions);
  return where;
}

void Versions::SetAside(const std::string& path) {
  disk_.Sync(path);
  if (Aside* const aside = Find(path)) {  // not whole
    aside->failed = false;
    Move(path, PlaceIn(kHalfWritten, path));
    return;
  }
  Aside aside{path, Waiting(path), ItselfAt(path).Permissions()};
  Move(path, aside.where);
  aside_.push_back(std::move(aside));
}

void Versions::SetAsideCopy(const std::string& path, const std::string& link) {
  if (Aside* const aside = Find(link)) {
    aside->failed = false;
    return;
  }
  Aside aside{link, Waiting(link), At(path).Permissions()};
  Copy(path, aside.where, aside.permissions);
  aside_.push_back(std::move(aside));
}

std::optional<mode_t> Versions::PermissionsOf(const std::string& path) const {
  const Aside* const aside = Find(path);
  return aside == nullptr ? std::nullopt : std::optional(aside->permissions);
}

// A file that is written in several events and lacks a part stays without it.
void Versions::Written(const std::string& path) {
  Aside* const aside = Find(path);
  if (aside != nullptr && !IsHeld(path)) aside->failed = false;
}

void Versions::Failed(const std::string& path) {
  if (Aside* const aside = Find(path)) aside->failed = true;
}

void Versions::AllFailed() {
  for (Aside& aside : aside_) aside.failed = true;
}

void Versions::Hold(const std::string& path) {
  if (!IsHeld(path)) held_.push_back(path);
}

void Versions::Release(const std::string& path) {
  std::erase_if(held_, [&](const std::string& held) { return text::EqualFolded(held, path); });
}

bool Versions::IsHeld(const std::string& path) const {
  return std::any_of(held_.begin(), held_.end(),
                     [&](const std::string& held) { return text::EqualFolded(held, path); });
}

void Versions::TakeIn() {
  for (std::size_t i = 0; i < aside_.size();) {
    if (aside_[i].failed || IsHeld(aside_[i].path)) {
      ++i;
      continue;
    }
    KeepAt(aside_[i].where, PlaceOf(aside_[i].path), kVersions);
    aside_.erase(aside_.begin() + static_cast<std::ptrdiff_t>(i));
  }
}

std::vector<std::string> Versions::PutBack() {
  std::vector<std::string> names;
  PutBack(Folder() + "/" + std::string(kRewriting), "", names);
  return names;
}

// Goes through the files that wait, in the folder itself and those in it, but not behind a link.
void Versions::PutBack(const std::string& folder, const std::string& rest, std::vector<std::string>& names) {
  if (!ItselfAt(folder).folder) return;
  std::vector<std::string> entries;
  ForEachEntry(folder, [&](const dirent&, std::string_view name) { entries.emplace_back(name); });
  for (const std::string& entry : entries) {
    const std::string path = folder + "/" + entry;
    const Standing standing = ItselfAt(path);
    const std::string name = rest.empty() ? entry : rest + "/" + entry;
    try {
      if (standing.folder) PutBack(path, name, names);
      if (standing.file && PutBackFile(path, name)) names.push_back(PlainName(name));
    } catch (const RunTimeError&) {
      // It goes on waiting, for a start at which it can be moved.
    }
  }
}

// Whether it was put back. A file from outside the data folder, or one that stands behind a link, is not:
// nobody may have a file put anywhere by preparing a folder. What waited for it stays as a version.
bool Versions::PutBackFile(const std::string& waiting, const std::string& rest) {
  const std::string path = folder_ + "/" + rest;
  const std::string folder = FolderOf(path);
  if (!ItselfAt(folder).folder || RealPath(folder) != RealPath(folder_) + folder.substr(folder_.size())) {
    return false;
  }
  const std::string like = EntryLike(folder, PlainName(path.substr(folder.size() + 1)));
  const std::string present = like.empty() ? path : folder + "/" + like;
  const Standing standing = ItselfAt(present);
  if (standing.there && !standing.file) {
    KeepAt(waiting, PlaceOf(path), kVersions);
    return false;
  }
  if (LengthAt(present) > 0) Move(present, PlaceIn(kHalfWritten, present));
  if (standing.there && present != path && LengthAt(present) == 0) {
    if (ItselfAt(present).there) disk_.Remove(present);
  }
  Move(waiting, path);
  return true;
}

}  // namespace lectern::files
