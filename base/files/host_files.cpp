#include "base/files/host_files.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

#include "base/errors.h"
#include "base/files/path_names.h"
#include "base/text/characters.h"

namespace lectern::files {

using base::ErrorNumber;
using base::RunTimeError;

void FailWith(int host_error) {
  switch (host_error) {
    case ENOENT:
      throw RunTimeError(ErrorNumber::kFileNotFound);
    case ENOTDIR:
      throw RunTimeError(ErrorNumber::kPathNotFound);
    case EACCES:
    case EPERM:
    case EROFS:
    case ELOOP:  // a link where none is followed
      throw RunTimeError(ErrorNumber::kPermissionDenied);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      throw RunTimeError(ErrorNumber::kDiskFull);
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
      throw RunTimeError(ErrorNumber::kBadFileName);
    case EEXIST:
      throw RunTimeError(ErrorNumber::kFileAlreadyExists);
    case EISDIR:
    case ENOTEMPTY:
      throw RunTimeError(ErrorNumber::kPathAccess);
    case ENXIO:
    case ENODEV:
      throw RunTimeError(ErrorNumber::kDeviceUnavailable);
    default:
      throw RunTimeError(ErrorNumber::kDeviceIo);
  }
}

std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

namespace {

Standing Described(int failed, const struct stat& status) {
  if (failed != 0) return {};
  return {true, S_ISDIR(status.st_mode), S_ISREG(status.st_mode), S_ISLNK(status.st_mode), status};
}

}  // namespace

Standing At(const std::string& path) {
  struct stat status = {};
  const int failed = ::stat(path.empty() ? "/" : path.c_str(), &status);
  return Described(failed, status);
}

Standing ItselfAt(const std::string& path) {
  struct stat status = {};
  const int failed = ::lstat(path.c_str(), &status);
  return Described(failed, status);
}

std::string RealPath(const std::string& path) {
  char* const real = ::realpath(path.empty() ? "/" : path.c_str(), nullptr);
  std::string found = real == nullptr ? "" : real;
  std::free(real);
  return found;
}

std::uint64_t LengthAt(const std::string& path) {
  const Standing standing = ItselfAt(path);
  return standing.file ? static_cast<std::uint64_t>(standing.status.st_size) : 0;
}

bool HoldTheSame(const std::string& path, const std::string& other) {
  if (LengthAt(path) != LengthAt(other)) return false;
  std::ifstream one(path, std::ios::binary);
  std::ifstream two(other, std::ios::binary);
  return one && two &&
         std::equal(std::istreambuf_iterator<char>(one), {}, std::istreambuf_iterator<char>(two));
}

OpenFile OpenRegular(const std::string& path, int flags) {
  constexpr mode_t kMode = 0666;
  Descriptor file(::open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC, kMode));
  if (!file.IsOpen()) return {Descriptor(-1)};
  struct stat status = {};
  if (::fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode)) {
    errno = EISDIR;
    return {Descriptor(-1)};
  }
  return {std::move(file), static_cast<std::uint64_t>(status.st_size)};
}

std::string EntryLike(const std::string& folder, std::string_view element) {
  std::string found;
  ForEachEntry(folder, [&](const dirent&, std::string_view name) {
    const bool fits = text::EqualFolded(PlainName(name), PlainName(element));
    if (fits && (found.empty() || name < found)) found = name;
  });
  return found;
}

}  // namespace lectern::files
