#include "tools/make_data/version_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <system_error>

#include "base/errors.h"
#include "base/files/file_system.h"
#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "forms/text_controls.h"
#include "reader/canon.h"
#include "reader/word_blanks.h"
#include "ui/headless/driver.h"

namespace lectern::make_data {

namespace fs = std::filesystem;

std::string BookText(const Version& version, std::size_t index) {
  constexpr std::size_t kNumberWidth = 4;
  const std::string kBehind(7, ' ');
  const std::string remark = version.name.empty() ? "" : " (" + version.name + ")";
  std::string text;
  for (const auto& [number, chapter] : version.books[index]) {
    text += "Chapter " + std::to_string(number) + remark + "\r\n";
    const int last = chapter.empty() ? 0 : chapter.rbegin()->first;
    for (int verse = 1; verse <= last; ++verse) {
      std::string line = std::to_string(verse);
      line.resize(std::max(line.size() + 1, kNumberWidth), ' ');
      const auto found = chapter.find(verse);
      const bool is_there = found != chapter.end() && !found->second.empty();
      line += reader::WithWordBlanks(is_there ? found->second : "[not in this version]");
      text += files::Encode(line + kBehind) + "\r\n";
    }
  }
  if (!version.terms.empty()) text += version.name + ", " + version.terms + "\r\n";
  return text;
}

void WriteFile(const std::string& path, const std::string& bytes) {
  const fs::path folder = fs::path(path).parent_path();
  if (fs::canonical(folder) != folder) throw Obstacle("The folder " + folder.string() + " is a link.");
  // What takes nothing's place can wait until everything is brought to the disk.
  const auto lasting = fs::exists(path) ? files::Lasting::kYes : files::Lasting::kNo;
  try {
    files::FileSystem(folder.string()).Replace(path, bytes, lasting);
  } catch (const base::RunTimeError& error) {
    throw Obstacle("The file " + path + " could not be written: " + error.what() + ".");
  }
}

namespace {

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Makes `copy` the same file as `path`, or its copy where the file system has no links.
void Link(const fs::path& path, const fs::path& copy) {
  std::error_code failure;
  const fs::path fresh = copy.string() + ".new";
  fs::remove(fresh, failure);
  fs::create_hard_link(path, fresh, failure);
  if (failure) return WriteFile(copy.string(), ReadFile(path));
  // Renaming a file to another name of the same file would leave both.
  fs::remove(copy, failure);
  fs::rename(fresh, copy, failure);
  if (failure)
    throw Obstacle("The file " + copy.string() + " could not be written: " + failure.message() + ".");
}

// Writes a book under its name with the prefix and under its name alone, where the second pane reads it. A
// copy there that differs from the book is a person's, and stays.
void WriteBook(const fs::path& folder, const std::string& prefix, const std::string& name,
               const std::optional<std::string>& text) {
  const fs::path path = folder / (prefix + name + ".txt");
  const fs::path copy = folder / (name + ".txt");
  const bool shares = !prefix.empty() && (!fs::exists(copy) || ReadFile(copy) == ReadFile(path));
  if (text) WriteFile(path.string(), *text);
  if (shares && fs::exists(path)) Link(path, copy);
}

// Without a text the book that is there stays.
void WriteBook(const fs::path& folder, const std::string& prefix, std::size_t book,
               const std::optional<std::string>& text) {
  const std::string name(reader::kCanon[book]);
  WriteBook(folder, prefix, name, text);
  if (name == "1 Samuel" || name == "2 Samuel") {
    WriteBook(folder, prefix, name.substr(0, 1) + "-Samuel", text);
  }
}

}  // namespace

void WriteBooks(const Version& version, const std::string& folder, const std::string& prefix) {
  fs::create_directories(folder);
  for (std::size_t i = 0; i < reader::kCanon.size(); ++i) {
    if (!version.books[i].empty()) WriteBook(folder, prefix, i, BookText(version, i));
  }
}

void WriteStandIn(const Version& version, const std::string& folder, const std::string& prefix) {
  fs::create_directories(folder);
  for (std::size_t i = 0; i < reader::kCanon.size(); ++i) {
    if (version.books[i].empty()) continue;
    std::ifstream book(folder + "/" + prefix + std::string(reader::kCanon[i]) + ".txt");
    std::string first_line;
    const bool is_persons =
        std::getline(book, first_line) && first_line.find("(" + version.name + ")") == std::string::npos;
    WriteBook(folder, prefix, i, is_persons ? std::nullopt : std::optional(BookText(version, i)));
  }
}

void WriteChapterCounts(const Version& version, const std::string& data_folder) {
  // The tool reads the books from the data folder itself, by names cut to eight characters, so it gets a
  // folder of its own.
  const fs::path bench = fs::path(data_folder) / "making";
  fs::remove_all(bench);
  fs::create_directories(bench);
  for (std::size_t i = 0; i < reader::kCanon.size(); ++i) {
    constexpr std::size_t kShortName = 8;
    const std::string short_name(reader::kCanon[i].substr(0, kShortName));
    WriteFile((bench / (short_name + ".txt")).string(), BookText(version, i));
  }
  std::string complaint;
  headless::Driver driver(bench.string(),
                          [&complaint](const std::string& line) { complaint += line + "\n"; });
  driver.Execute("click! Form1.Command12");
  std::ifstream made(bench / "bookschap.txt", std::ios::binary);
  std::string records{std::istreambuf_iterator<char>(made), {}};
  fs::remove_all(bench);
  if (records.empty() || !complaint.empty())
    throw Obstacle("The chapters could not be counted: " + complaint);
  for (const char* number : {"1", "2"}) {
    const std::string name = std::string("\"") + number + " Samuel\",";
    const std::size_t at = records.find(name);
    const std::string count = records.substr(at + name.size(), records.find('\r', at) - at - name.size());
    records += std::string("\"") + number + "-Samuel\"," + count + "\r\n";
  }
  WriteFile(data_folder + "/bookschap.txt", records);
}

}  // namespace lectern::make_data
