#include "tests/kit/power_cut.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <utility>

#include "tests/kit/temporary_folder.h"

namespace lectern {

namespace fs = std::filesystem;

FileTree TreeOf(const std::string& folder) {
  FileTree tree;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file())
      tree[entry.path().string().substr(folder.size() + 1)] = ReadFile(entry.path());
  }
  return tree;
}

void LayTree(const std::string& folder, const FileTree& tree) {
  fs::remove_all(folder);
  for (const auto& [name, bytes] : tree) WriteFile(folder + "/" + name, bytes);
}

LateDisk::LateDisk(std::string folder) : folder_(std::move(folder)) {
  for (auto& [name, bytes] : TreeOf(folder_)) {
    certain_[name] = files_.size();
    files_.push_back({bytes, bytes});
  }
  names_ = certain_;
}

void LateDisk::Apply(Names& names, const Renaming& renaming) {
  if (!renaming.from.empty() && names.erase(renaming.from) == 0) return;
  if (!renaming.to.empty()) names[renaming.to] = renaming.node;
}

void LateDisk::Add(std::string from, std::string to, Node node) {
  const bool no_from = from.empty();
  const bool no_to = to.empty();
  renamings_.push_back({std::move(from), std::move(to), node, no_from, no_to});
  Apply(names_, renamings_.back());
}

namespace {

std::string FolderIn(const std::string& name) {
  const std::size_t end = name.rfind('/');
  return end == std::string::npos ? "" : name.substr(0, end);
}

}  // namespace

void LateDisk::Take(const files::Disk::Change& change) {
  using Kind = files::Disk::Change::Kind;
  if (!change.path.starts_with(folder_)) return;
  const std::string name = change.path == folder_ ? "" : change.path.substr(folder_.size() + 1);
  const auto file = [&]() -> File& { return files_[names_.at(name)]; };
  switch (change.kind) {
    case Kind::kCreate:
      files_.push_back({});
      return Add("", name, files_.size() - 1);
    case Kind::kWrite:
      file().written += change.other;
      return;
    case Kind::kCut:
      file().written.resize(change.length);
      return;
    case Kind::kRename:
      return Add(name, change.other.substr(folder_.size() + 1), names_.at(name));
    case Kind::kRemove:
      return Add(name, "", names_.at(name));
    case Kind::kMakeFolder:
      return;  // comes with what is put into it
    case Kind::kSyncFile:
      file().synced = file().written;
      file().is_synced = true;
      return;
    case Kind::kSyncFolder:
      for (Renaming& renaming : renamings_) {
        renaming.from_is_certain |= FolderIn(renaming.from) == name;
        renaming.to_is_certain |= FolderIn(renaming.to) == name;
      }
      return;
  }
}

// Only what is certain, and the new files that were synced, with what became of their names before.
LateDisk::Names LateDisk::SyncedAhead() const {
  std::set<std::string> wanted;
  std::vector<const Renaming*> kept;
  for (auto renaming = renamings_.rbegin(); renaming != renamings_.rend(); ++renaming) {
    const bool is_new = renaming->from.empty() && files_[renaming->node].is_synced;
    const bool is_wanted = wanted.contains(renaming->from) || wanted.contains(renaming->to);
    if (!is_new && !is_wanted && !renaming->IsCertain()) continue;
    wanted.insert(renaming->from);
    wanted.insert(renaming->to);
    wanted.erase("");
    kept.push_back(&*renaming);
  }
  Names names = certain_;
  for (auto renaming = kept.rbegin(); renaming != kept.rend(); ++renaming) Apply(names, **renaming);
  return names;
}

void LateDisk::ForEachRemainder(const std::function<void(const FileTree&)>& take) const {
  const auto last_certain = std::find_if(renamings_.rbegin(), renamings_.rend(),
                                         [](const Renaming& renaming) { return renaming.IsCertain(); });
  auto next = renamings_.begin();
  Names names = certain_;
  for (; next != last_certain.base(); ++next) Apply(names, *next);
  Remainders(names, take);
  for (; next != renamings_.end(); ++next) {
    Apply(names, *next);
    Remainders(names, take);
  }
  Remainders(SyncedAhead(), take);
}

// All bytes late, all there, the whole blocks there, and one file ahead of the others.
void LateDisk::Remainders(const Names& names, const std::function<void(const FileTree&)>& take) const {
  constexpr std::size_t kBlock = 4096;
  FileTree late, there, torn;
  for (const auto& [name, node] : names) {
    const auto& [synced, written, is_synced] = files_[node];
    const bool grows = written.starts_with(synced);
    const std::size_t whole = std::max(synced.size(), written.size() / kBlock * kBlock);
    late[name] = synced;
    there[name] = written;
    torn[name] = grows ? written.substr(0, whole) : synced;
  }
  take(late);
  take(there);
  take(torn);
  for (const auto& [name, bytes] : there) {
    if (late[name] == bytes) continue;
    FileTree ahead = late;
    ahead[name] = bytes;
    take(ahead);
  }
}

}  // namespace lectern
