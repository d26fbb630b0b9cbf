// What a power cut may leave of a folder: a model of a disk whose changes arrive late.
//
// The model follows the changes that the program reports (files::Disk) and holds what is certain against what
// is merely done. Bytes are certain when their file was synced; before that a file has them all, none of
// them, or those of its first whole blocks. Names, renamings and deletions take effect in their order, as in
// the journal of a file system, and are certain when their folders were synced; but the name of a new file
// that was synced may arrive ahead of others.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "base/files/disk.h"

namespace lectern {

// Every file below a folder by its name there, with what it holds.
using FileTree = std::map<std::string, std::string>;

FileTree TreeOf(const std::string& folder);
void LayTree(const std::string& folder, const FileTree& tree);  // over what stands there

class LateDisk {
 public:
  // The folder as it is now, all on the disk.
  explicit LateDisk(std::string folder);

  // A change in the folder; one outside it is passed over.
  void Take(const files::Disk::Change& change);

  // Everything that a cut at this moment may leave.
  void ForEachRemainder(const std::function<void(const FileTree&)>& take) const;

 private:
  using Node = std::size_t;
  using Names = std::map<std::string, Node>;
  struct File {
    std::string synced, written;
    bool is_synced = false;  // at any time
  };
  struct Renaming {  // or a new name, from "", or a deletion, to ""
    std::string from, to;
    Node node;
    bool from_is_certain, to_is_certain;  // their folders were synced

    bool IsCertain() const { return from_is_certain && to_is_certain; }
    bool Touches(const std::string& name) const { return name == from || name == to; }
  };

  static void Apply(Names& names, const Renaming& renaming);
  Names SyncedAhead() const;
  void Add(std::string from, std::string to, Node node);
  void Remainders(const Names& names, const std::function<void(const FileTree&)>& take) const;

  const std::string folder_;
  std::vector<File> files_;
  Names certain_;  // ahead of the renamings
  Names names_;    // behind them
  std::vector<Renaming> renamings_;
};

}  // namespace lectern
