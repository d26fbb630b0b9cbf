#include "tools/make_data/made_files.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string_view>
#include <system_error>

#include "base/errors.h"
#include "base/files/file_system.h"
#include "base/text/characters.h"
#include "tools/make_data/texts.h"
#include "tools/make_data/version_files.h"

namespace lectern::make_data {

namespace fs = std::filesystem;

namespace {

constexpr const char* kList = "lectern-made.txt";
constexpr const char* kCatalogue = "pics2.dat";

// Files that the program writes for the person, so that without a list they may hold anything of theirs.
constexpr std::array kMayBeThePersons = {"codex.cfg", "colors.dat", "CONCORD.DAT", "CONCORD2.DAT",
                                         "conc.txt",  "picend.jpg", kCatalogue};

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// FNV-1a, in 64 bits: it tells what was changed, and nobody gains by deceiving it.
std::string DigestOf(std::string_view bytes) {
  std::uint64_t digest = 0xCBF29CE484222325U;
  for (const char byte : bytes) digest = (digest ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
  char digits[17];
  std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(digest));
  return digits;
}

// The digests, by the files' names.
using List = std::map<std::string, std::string>;

List ReadList(const std::string& data_folder) {
  constexpr std::size_t kDigits = 16;
  List list;
  std::ifstream file(data_folder + "/" + kList);
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (line.size() > kDigits + 1) list[line.substr(kDigits + 1)] = line.substr(0, kDigits);
  }
  return list;
}

// Where the file is, in whatever case its name is written; "" if there is none.
std::string Present(const files::FileSystem& files, const std::string& name) {
  try {
    const std::string path = files.HostPath(name);
    return fs::exists(fs::symlink_status(path)) ? path : "";
  } catch (const base::RunTimeError&) {
    return "";
  }
}

bool MayBeThePersons(const std::string& name, std::string_view bytes) {
  constexpr std::size_t kBeginning = 200;
  if (std::find(kMayBeThePersons.begin(), kMayBeThePersons.end(), name) != kMayBeThePersons.end())
    return true;
  // The text that stands in for the second version says what it is.
  if (name.starts_with("NEW/")) {
    return !bytes.empty() &&
           bytes.substr(0, kBeginning).find("World English Bible") == std::string_view::npos;
  }
  return name.starts_with("pics/") && bytes.starts_with("BM");  // a painting
}

enum class Owner { kNobody, kTool, kPerson, kUnknown };

// Whose a file in the data folder is. kUnknown is for what an earlier tool may have made.
Owner OwnerOf(const files::FileSystem& files, const List& list, const std::string& name) {
  const std::string path = Present(files, name);
  if (path.empty()) return Owner::kNobody;
  if (!fs::is_regular_file(fs::symlink_status(path)) || name == "codex.cfg") return Owner::kPerson;
  const std::string bytes = BytesOf(path);
  const auto made = list.find(name);
  if (made != list.end()) return made->second == DigestOf(bytes) ? Owner::kTool : Owner::kPerson;
  return MayBeThePersons(name, bytes) ? Owner::kPerson : Owner::kUnknown;
}

// The names of all files in a folder and the folders in it.
std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) names.push_back(fs::relative(entry.path(), folder).generic_string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// A link would have the files written to another place.
void MakeFoldersFor(const std::string& data_folder, const std::string& name) {
  const std::string folder = data_folder + "/" + fs::path(name).parent_path().string();
  if (fs::is_symlink(fs::symlink_status(folder))) {
    throw Obstacle("Nothing is written through the link " + folder + ". Put the folder itself in its place.");
  }
  fs::create_directories(folder);
}

void PutIn(const std::string& making, files::FileSystem& files, const std::string& name) {
  if (fs::path(name).has_parent_path()) MakeFoldersFor(files.StartFolder(), name);
  const std::string present = Present(files, name);
  fs::rename(making + "/" + name, present.empty() ? files.StartFolder() + "/" + name : present);
}

std::string PictureOf(const std::string& record) {
  std::istringstream fields(record);
  std::string name;
  std::getline(fields, name, '"');
  std::getline(fields, name, '"');
  return text::Lower(name);
}

// Adds the records of pictures that the data folder never had.
void ExtendCatalogue(const std::string& making, const std::string& data_folder,
                     const std::set<std::string>& known) {
  std::istringstream records(BytesOf(making + "/" + kCatalogue));
  std::string added;
  for (std::string record; std::getline(records, record);) {
    if (!known.contains(PictureOf(record))) added += record + "\n";
  }
  if (added.empty()) return;
  files::FileSystem files(data_folder);
  const std::string path = Present(files, kCatalogue);
  if (!fs::is_regular_file(fs::symlink_status(path))) return;
  std::string bytes = BytesOf(path);
  if (!bytes.empty() && !bytes.ends_with('\n')) bytes += "\r\n";
  files.ReplaceKeepingBackup(kCatalogue, bytes + added);
  files.Settle();
}

}  // namespace

MakingFolder::MakingFolder(const std::string& data_folder) : path_(data_folder + "/lectern-making-XXXXXX") {
  if (::mkdtemp(path_.data()) == nullptr) throw Obstacle("The folder " + data_folder + " cannot be written.");
}

MakingFolder::~MakingFolder() {
  std::error_code failure;
  fs::remove_all(path_, failure);
}

bool Stays(const std::string& data_folder, const std::string& name) {
  return OwnerOf(files::FileSystem(data_folder), ReadList(data_folder), name) == Owner::kPerson;
}

std::vector<std::string> BringIn(const std::string& making, const std::string& data_folder) {
  files::FileSystem files(data_folder);
  List list = ReadList(data_folder);
  std::set<std::string> known_pictures;
  for (const auto& [name, digest] : list) {
    if (name.starts_with("pics/")) known_pictures.insert(text::Lower(fs::path(name).stem().string()));
  }
  for (const std::string& name : files.Files("pics", "*.jpg")) {
    known_pictures.insert(text::Lower(fs::path(name).stem().string()));
  }
  std::vector<std::string> changed;
  for (const std::string& name : NamesIn(making)) {
    const std::string digest = DigestOf(BytesOf(making + "/" + name));
    const Owner owner = OwnerOf(files, list, name);
    if (owner == Owner::kPerson) {
      if (name == kCatalogue) ExtendCatalogue(making, data_folder, known_pictures);
      if (list.contains(name) && name != "codex.cfg") changed.push_back(name);
      continue;
    }
    const bool is_same = owner == Owner::kUnknown && DigestOf(BytesOf(Present(files, name))) == digest;
    if (owner == Owner::kUnknown && !is_same) files.DeleteKeepingBackup(name);
    PutIn(making, files, name);
    list[name] = digest;
  }
  std::string lines;
  for (const auto& [name, digest] : list) lines += digest + " " + name + "\r\n";
  WriteFile(making + "/" + kList, lines);
  PutIn(making, files, kList);
  files.Settle();
  return changed;
}

void BringInOwn(const std::string& making, const std::string& data_folder) {
  files::FileSystem files(data_folder);
  for (const std::string& name : NamesIn(making)) {
    if (fs::path(name).has_parent_path()) MakeFoldersFor(data_folder, name);
    const std::string present = Present(files, name);
    if (!present.empty() && BytesOf(present) == BytesOf(making + "/" + name)) continue;
    if (!present.empty()) files.DeleteKeepingBackup(name);
    PutIn(making, files, name);
  }
  files.Settle();
}

}  // namespace lectern::make_data
