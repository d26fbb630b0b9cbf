#include "tools/make_data/book_files.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "base/files/text_encoding.h"
#include "reader/canon.h"
#include "ui/headless/driver.h"

namespace lectern::make_data {

namespace fs = std::filesystem;

std::string BookText(const Book& book, const std::string& chapter_remark) {
  constexpr std::size_t kNumberWidth = 4;
  const std::string kBehind(7, ' ');
  std::string text;
  for (const auto& [number, chapter] : book) {
    text +=
        "Chapter " + std::to_string(number) + (chapter_remark.empty() ? "" : " " + chapter_remark) + "\r\n";
    const int last = chapter.empty() ? 0 : chapter.rbegin()->first;
    for (int verse = 1; verse <= last; ++verse) {
      std::string line = std::to_string(verse);
      line.resize(std::max(line.size() + 1, kNumberWidth), ' ');
      const auto found = chapter.find(verse);
      if (found != chapter.end()) line += found->second;
      text += files::Encode(line + kBehind) + "\r\n";
    }
  }
  return text;
}

void WriteFile(const std::string& path, const std::string& bytes) {
  const std::string fresh = path + ".new";
  std::ofstream file(fresh, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  std::error_code failure;
  if (file) {
    fs::rename(fresh, path, failure);
  } else {
    failure.assign(errno != 0 ? errno : EIO, std::generic_category());
  }
  if (failure) throw Obstacle("The file " + path + " could not be written: " + failure.message() + ".");
}

void WriteBooks(const Version& version, const std::string& folder, const std::string& prefix) {
  fs::create_directories(folder);
  for (std::size_t i = 0; i < reader::kCanon.size(); ++i) {
    if (version.books[i].empty()) continue;
    const std::string name(reader::kCanon[i]);
    const std::string text = BookText(version.books[i], version.chapter_remark);
    WriteFile(folder + "/" + prefix + name + ".txt", text);
    if (name == "1 Samuel" || name == "2 Samuel") {
      WriteFile(folder + "/" + prefix + name.substr(0, 1) + "-Samuel.txt", text);
    }
  }
}

void WriteStandIn(const Version& version, const std::string& folder, const std::string& prefix) {
  Version wanted = version;
  for (std::size_t i = 0; i < reader::kCanon.size(); ++i) {
    std::ifstream book(folder + "/" + prefix + std::string(reader::kCanon[i]) + ".txt");
    std::string first_line;
    if (std::getline(book, first_line) && first_line.find(version.chapter_remark) == std::string::npos) {
      wanted.books[i].clear();
    }
  }
  WriteBooks(wanted, folder, prefix);
}

void WriteChapterCounts(const Version& version, const std::string& data_folder) {
  // The tool reads the books from the data folder itself, by names cut to eight characters: it gets a
  // folder of its own.
  const fs::path bench = fs::path(data_folder) / "making";
  fs::remove_all(bench);
  fs::create_directories(bench);
  for (std::size_t i = 0; i < reader::kCanon.size(); ++i) {
    constexpr std::size_t kShortName = 8;
    const std::string short_name(reader::kCanon[i].substr(0, kShortName));
    WriteFile((bench / (short_name + ".txt")).string(), BookText(version.books[i], ""));
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
