#include "tests/kit/story_folder.h"

#include <fstream>
#include <iterator>
#include <utility>

#include "base/files/file_system.h"
#include "base/files/text_encoding.h"

namespace lectern::kit {

namespace fs = std::filesystem;

StoryFolder::StoryFolder(fs::path folder, fs::path data, fs::path real)
    : folder_(std::move(folder)), data_(std::move(data)), real_(std::move(real)) {}

void StoryFolder::Use(const std::string& name) {
  fs::remove_all(folder_);
  seen_.clear();
  origin_ = name == "real" ? real_ : data_ / name;
  if (name == "empty") {
    fs::create_directories(folder_);
  } else {
    fs::copy(origin_, folder_, fs::copy_options::recursive);
  }
}

std::optional<Lines> StoryFolder::Run(const std::string& command, const std::string& file,
                                      const std::string& second, const Lines& lines) {
  const fs::path path = folder_ / file;
  if (command == "@write" || command == "@append") return Write(file, command == "@append", second, lines);
  if (command == "@files") return NamesIn(path);
  if (command == "@changes") return Changes(file, second.empty() ? file : second);
  if (command == "@show") {
    seen_[file] = LinesOf(path);
    return seen_[file].empty() ? Lines{"empty"} : seen_[file];
  }
  if (command == "@delete") {
    fs::remove_all(path);
  } else if (command == "@copy") {
    fs::copy(path, folder_ / second, fs::copy_options::recursive);
  } else if (command == "@folder") {
    fs::create_directories(path);
  } else if (command == "@link") {
    fs::create_symlink(second, path);
  } else {
    return std::nullopt;
  }
  return Lines{};
}

// Prints what was written, as the story has it.
Lines StoryFolder::Write(const std::string& file, bool append, const std::string& text, const Lines& lines) {
  const fs::path path = folder_ / file;
  fs::create_directories(path.parent_path());
  std::ofstream out(path, std::ios::binary | (append ? std::ios::app : std::ios::trunc));
  out << text;
  for (const std::string& line : lines) out << line << "\r\n";
  out.close();
  seen_[file] = LinesOf(path);
  return lines;
}

Lines StoryFolder::Changes(const std::string& file, const std::string& other) {
  if (!seen_.contains(other)) seen_[other] = LinesOf(origin_ / other);
  const Lines before = seen_[other];
  seen_[file] = LinesOf(folder_ / file);
  return Difference(before, seen_[file]);
}

// The lines of a file, or the names in a folder.
Lines StoryFolder::LinesOf(const fs::path& path) const {
  if (fs::is_directory(path)) return NamesIn(path);
  std::ifstream file(path, std::ios::binary);
  if (!file) return {"missing"};
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  std::string text = files::Decode(bytes);
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = text.find("\r\n");
    lines.push_back(text.substr(0, end) + (end == std::string::npos ? " (no line end)" : ""));
    text.erase(0, end == std::string::npos ? end : end + 2);
  }
  return lines;
}

Lines StoryFolder::NamesIn(const fs::path& path) const {
  return files::FileSystem(folder_.string()).Files(path.string(), "*");
}

}  // namespace lectern::kit
