// The files of the data folder and around it, by the names the program writes: joined with backslashes or
// slashes, in any case. Every file operation of the program passes here.
//
// A name that begins with the start folder is looked up from that folder on, one that begins with a
// separator from the root, any other in the start folder. Each element is taken as written where it
// exists so, else the one that differs in case only. Characters that other systems refuse in names are stored
// in another form (path_names.h). Failures are RunTimeErrors: 53 where the file is missing, 76 where its
// folder is, 52 where the name is refused, 70 where access is, 61 for a full disk.
//
// Nothing is written through a link that leads out of the start folder, nor through a link to a file:
// error 70. The one exception is a note, of which a person may keep the file elsewhere: a link whose name
// ends in ".not" is followed if it and the file belong to the person.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/files/appending.h"
#include "base/files/disk.h"
#include "base/files/versions.h"

namespace lectern::files {

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

  // The file for reading; not open where it cannot be.
  Descriptor Open(std::string_view name) const;

  // Error 7 where the file does not fit into the memory.
  void Read(std::string_view name, Contents& contents) const;
  Appending OpenForAppending(std::string_view name, Lasting lasting = Lasting::kYes);

  // New contents for a whole file, which appear at once or not at all; with KeepingBackup the last version
  // stays as with DeleteKeepingBackup. Of lasting files, the bytes are on the disk before they appear.
  void Replace(std::string_view name, std::string_view bytes, Lasting lasting);
  void ReplaceKeepingBackup(std::string_view name, std::string_view bytes);

  void Delete(std::string_view name);  // a file of no lasting value
  void Rename(std::string_view from, std::string_view to);

  // Deletes something that a person made: its last versions stay (versions.h).
  void DeleteKeepingBackup(std::string_view name);

  // The same for a file that is written anew in the same event, with the permissions that it had. If the
  // program is stopped before the event has ended, or the new file cannot be written, the next start puts the
  // old one back. A link to a note stays; the file behind it is replaced when the new one is closed.
  void SetAside(std::string_view name);

  // The same for a file that is written in several events. Until EndRewriting the old one comes back whatever
  // happens, and the new one need not be on the disk.
  void BeginRewriting(std::string_view name);
  void EndRewriting(std::string_view name);  // also where it never began

  // Brings everything to the disk that was written, but for files of no lasting value. To be called before a
  // success is reported, and at the end of each event.
  void Settle();

  // To be called at the start: puts back what was set aside when the program was stopped, and removes what it
  // was writing then. The names in the start folder of what was put back.
  std::vector<std::string> Mend();

  // The names in a folder, in the order of file lists; empty where the folder cannot be read.
  std::vector<std::string> Files(std::string_view folder, std::string_view pattern) const;
  std::vector<std::string> Folders(std::string_view folder) const;

  // The name as the host knows it; the last element need not exist.
  std::string HostPath(std::string_view name) const;

  // Through its hooks a test watches or stops the program at any operation.
  Disk disk;

 private:
  friend class Appending;
  struct Writable {
    std::string path;   // which is written
    std::string place;  // the link to it, or the same
  };

  std::string AsWritten(std::string_view name) const;
  void RequireOwnFolder(const std::string& path) const;
  Writable PathToWrite(std::string_view name) const;
  Appending OpenReplacing(const Writable& writable);
  std::string WriteBeside(const std::string& path, std::string_view bytes, Lasting lasting);
  void PutInPlace(const std::string& fresh, const std::string& path, Lasting lasting);

  std::string start_folder_;
  Versions versions_;
  std::set<std::string> links_;  // to files that the next opening replaces
};

}  // namespace lectern::files
