// The calls that change files and folders, all in one place, with the paths as the host writes them.
//
// What is changed here is on the disk for certain when Settle has returned, and before that in any part and
// order that the host likes. A file of no lasting value is left to the host altogether.
//
// Files are opened and made without following a link at the end of their path. Failures are RunTimeErrors.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <sys/types.h>

#include "base/files/descriptor.h"

namespace lectern::files {

enum class Operation { kRead, kAppend, kWrite, kDelete, kRename, kSync };
enum class Lasting { kYes, kNo };

class Disk {
 public:
  // Something that has been done.
  struct Change {
    enum class Kind { kCreate, kWrite, kCut, kRename, kRemove, kMakeFolder, kSyncFile, kSyncFolder };
    Kind kind;
    std::string path;
    std::string other = {};    // kRename: the new path; kWrite: the bytes, which go behind the end
    std::uint64_t length = 0;  // kCut: what is left
  };

  // Called before each operation with its path; what it throws, the operation throws. Through it a test stops
  // the program at a certain operation or lets one fail.
  std::function<void(Operation, const std::string& path)> before;
  // Called after each change.
  std::function<void(const Change&)> changed;

  void Announce(Operation operation, const std::string& path) const;

  // A file to be written behind its end; not open where there is none.
  OpenFile OpenForAppending(const std::string& path) const;

  // A new file, with the permissions of the one that it replaces or else the person's usual ones. Error 58
  // where something of that name exists, be it a link that leads nowhere.
  Descriptor Create(const std::string& path, std::optional<mode_t> permissions, Lasting lasting);

  void Write(const Descriptor& file, const std::string& path, std::string_view bytes, Lasting lasting);
  void Cut(const Descriptor& file, const std::string& path, std::uint64_t length);
  void Rename(const std::string& from, const std::string& to, Lasting lasting = Lasting::kYes);
  void Remove(const std::string& path);
  void MakeFolder(const std::string& path);  // in a folder that exists; may exist itself

  // A name that nobody can foresee, for a file beside this one.
  static std::string NameBeside(const std::string& path);
  static bool IsNameBeside(std::string_view name);  // without the folder

  // Brings the file's bytes to the disk.
  void Sync(const std::string& path);

  // Brings to the disk what has changed: files, but for those that `waits` names, and then folders. What has
  // failed to arrive is not tried again.
  void Settle(const std::function<bool(const std::string& path)>& waits);

 private:
  void Report(Change change) const;
  void ChangedIn(const std::string& path);
  void SyncFolder(const std::string& path) const;

  std::set<std::string> files_;  // changed and not synced
  std::set<std::string> folders_;
};

}  // namespace lectern::files
