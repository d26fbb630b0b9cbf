// The files of the data folder and around it, by the names the program writes: joined with backslashes or
// slashes, in any case. Every file operation of the program passes here.
//
// A name that begins with the start folder is looked up from that folder on, one that begins with a
// separator from the root, any other in the start folder. Each element is taken as written where it
// exists so, else the one that differs in case only. Failures are RunTimeErrors: 53 where the file is
// missing, 76 where its folder is, 52 where the name is refused, 70 where access is, 61 for a full disk.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/files/appending.h"

namespace lectern::files {

enum class Operation { kRead, kAppend, kWrite, kDelete, kRename };

// The bytes of a file. The room is kept from one file to the next, the contents are not.
class Contents {
 public:
  std::string_view Bytes() const { return {room_.get(), size_}; }

 private:
  friend class FileSystem;
  std::unique_ptr<char[]> room_;
  std::size_t capacity_ = 0;
  std::size_t size_ = 0;
};

class FileSystem {
 public:
  // The start folder is the data folder as the host writes it. Requires: no separator stands at its end.
  explicit FileSystem(std::string start_folder);

  const std::string& StartFolder() const { return start_folder_; }

  bool FileExists(std::string_view name) const;
  bool FolderExists(std::string_view name) const;
  std::uint64_t Length(std::string_view name) const;

  void Read(std::string_view name, Contents& contents) const;
  Appending OpenForAppending(std::string_view name) const;

  // New contents for a whole file, which appear at once or not at all; with KeepingBackup the last version
  // stays as with DeleteKeepingBackup.
  void Replace(std::string_view name, std::string_view bytes) const;
  void ReplaceKeepingBackup(std::string_view name, std::string_view bytes) const;

  void Delete(std::string_view name) const;
  void Rename(std::string_view from, std::string_view to) const;

  // Deletes something that a person made: its last version stays under `backup` in the start folder, so
  // that nothing is lost whatever happens before the new one is written. The version before stays under
  // `backup/backup`, and the longest of all before that one under `backup/backup/backup`: what was written
  // by halves, however often, does not push out what was whole. A file of no bytes is no version, nor is
  // the same one again.
  void DeleteKeepingBackup(std::string_view name) const;

  // The names in a folder, in the order of file lists; empty where the folder cannot be read.
  std::vector<std::string> Files(std::string_view folder, std::string_view pattern) const;
  std::vector<std::string> Folders(std::string_view folder) const;

  // The name as the host knows it; the last element need not exist.
  std::string HostPath(std::string_view name) const;

  // Called before each operation with the host's path; what it throws, the operation throws. Through it a
  // test stops the program at a certain operation or lets one fail.
  std::function<void(Operation, const std::string& path)> before;

 private:
  friend class Appending;
  std::string AsWritten(std::string_view name) const;
  void Announce(Operation operation, const std::string& path) const;
  std::string BackupOf(const std::string& path) const;
  void Keep(const std::string& path, int versions) const;
  void MoveOver(const std::string& path, const std::string& place) const;
  std::string WriteBeside(const std::string& path, std::string_view bytes) const;

  std::string start_folder_;
};

}  // namespace lectern::files
