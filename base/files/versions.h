// The previous versions of what a person made, and the files that are being written anew.
//
// Versions are kept in the folder `backup` of the data folder, each at the place that it had there: the last
// one; in `backup/backup` the one before it; and in `backup/backup/backup` the longest of all earlier ones.
// So what was written by halves, however often, does not push out what was whole. A file of no bytes is no
// version, nor is the same one again. Where something else is called `backup`, the folder is
// `lectern-backup`.
//
// A file that is to be written anew is set aside first: it waits in `backup/lectern-rewriting` and becomes
// the last version when the new one is on the disk. What waits there when the program starts was cut short.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/files/disk.h"

namespace lectern::files {

class Versions {
 public:
  // The data folder, without a separator at its end.
  Versions(Disk& disk, std::string folder) : disk_(disk), folder_(std::move(folder)) {}

  // Moves a file away that is deleted. Requires: it is a file and not empty.
  void Keep(const std::string& path);

  // Moves a file away that is to be written anew, or a copy of it where it is reached by a link. Requires: it
  // is a file and not empty.
  void SetAside(const std::string& path);
  void SetAsideCopy(const std::string& path, const std::string& link);

  // The permissions of the file that was set aside from this place.
  std::optional<mode_t> PermissionsOf(const std::string& path) const;

  // Something was written in this place, or could not be. What could not be written stays set aside.
  void Written(const std::string& path);
  void Failed(const std::string& path);
  void AllFailed();

  // A file that is written in more than one event stays set aside until the last one.
  void Hold(const std::string& path);
  void Release(const std::string& path);
  bool IsHeld(const std::string& path) const;

  // Makes versions of what is set aside. Requires: what was written in their places is on the disk.
  void TakeIn();

  // Puts back what a program that was stopped left set aside, and moves what stands half written in its place
  // to `backup/lectern-half-written`. The names in the data folder of what was put back.
  std::vector<std::string> PutBack();

 private:
  struct Aside {
    std::string path;   // where it was
    std::string where;  // where it waits
    mode_t permissions;
    bool failed = false;
  };

  std::string Folder() const;
  std::string PlaceOf(const std::string& path) const;
  std::string PlaceIn(std::string_view subfolder, const std::string& path) const;
  const Aside* Find(const std::string& path) const;
  Aside* Find(const std::string& path);
  std::string Waiting(const std::string& path);
  void KeepAt(const std::string& path, const std::string& place, int versions);
  void MakeFoldersFor(const std::string& path);
  void Move(const std::string& path, const std::string& place);
  void Copy(const std::string& path, const std::string& place, mode_t permissions);
  void PutBack(const std::string& folder, const std::string& rest, std::vector<std::string>& names);
  bool PutBackFile(const std::string& waiting, const std::string& rest);

  Disk& disk_;
  const std::string folder_;
  std::vector<Aside> aside_;
  std::vector<std::string> held_;
};

}  // namespace lectern::files
