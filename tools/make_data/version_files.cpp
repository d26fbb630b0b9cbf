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

namespace {

constexpr std::size_t kShortest = 3;
constexpr int kFewest = 2;  // verses
constexpr int kMost = 300;
constexpr std::string_view kTrueEnd = "\"Zion\",\"1 Peter 2 6\"\r\n";

struct Spread {
  int verses = 0;
  int books = 0;
  std::size_t last_book = 0;
  const std::string* last_verse = nullptr;
};

// The words of a verse as the scan finds them: from a blank to the first character that is not a letter.
std::vector<std::string> WordsOf(const std::string& verse) {
  std::vector<std::string> words;
  std::string word;
  bool behind_blank = true;
  for (const char c : verse + " ") {
    const char small = c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
    if (behind_blank && small >= 'a' && small <= 'z') {
      word.push_back(small);
      continue;
    }
    if (word.size() >= kShortest) words.push_back(word);
    word.clear();
    behind_blank = c == ' ';
  }
  return words;
}

// Removes the second copy of the last word's records at the end.
std::string WithoutRepeatedBlock(const std::string& records, const std::string& last_word) {
  const std::string start = "\"" + last_word + "\",";
  std::size_t first = records.size();
  while (first > 0) {
    const std::size_t line = records.rfind('\n', first - 2);
    const std::size_t at = line == std::string::npos ? 0 : line + 1;
    if (records.compare(at, start.size(), start) != 0) break;
    first = at;
  }
  return records.substr(0, first + (records.size() - first) / 2);
}

}  // namespace

std::vector<std::string> ConcordanceWords(const Version& version, std::size_t most) {
  std::map<std::string, Spread> spreads;
  for (std::size_t book = 0; book < version.books.size(); ++book) {
    for (const auto& [number, chapter] : version.books[book]) {
      for (const auto& [verse, text] : chapter) {
        for (const std::string& word : WordsOf(text)) {
          Spread& spread = spreads[word];
          if (spread.last_verse == &text) continue;
          spread.last_verse = &text;
          ++spread.verses;
          if (spread.books == 0 || spread.last_book != book) ++spread.books;
          spread.last_book = book;
        }
      }
    }
  }
  std::vector<std::pair<Spread, std::string>> fitting;
  for (const auto& [word, spread] : spreads) {
    if (spread.verses >= kFewest && spread.verses <= kMost) fitting.emplace_back(spread, word);
  }
  std::stable_sort(fitting.begin(), fitting.end(), [](const auto& a, const auto& b) {
    return std::pair(a.first.books, a.first.verses) > std::pair(b.first.books, b.first.verses);
  });
  fitting.resize(std::min(most, fitting.size()));
  std::vector<std::string> words;
  words.reserve(fitting.size());
  for (const auto& [spread, word] : fitting) words.push_back(word);
  std::sort(words.begin(), words.end());
  return words;
}

void BuildConcordance(const std::string& data_folder, const reader::Version& version,
                      const std::vector<std::string>& words,
                      const std::function<void(std::size_t, std::size_t)>& progress) {
  // The tool writes its files to the folder from which it reads the books, so it gets a folder of its own.
  const fs::path bench = fs::path(data_folder) / "making";
  fs::remove_all(bench);
  fs::create_directories(bench);
  for (const reader::Version& each : reader::kVersions) {
    fs::create_directory_symlink(fs::path(data_folder) / each.folder, bench / each.folder);
  }
  std::string list;
  for (const std::string& word : words) list += word + "\r\n";
  WriteFile((bench / "conc.txt").string(), list);
  const fs::path target = bench / version.concordance;
  WriteFile(target.string(), "");

  std::string complaint;
  headless::Driver driver(bench.string(), [&complaint](const std::string& line) {
    if (line != "beep" && !line.starts_with("ran ")) complaint += line + "\n";
  });
  driver.Execute("click Form1." + std::string(version.option));
  driver.Execute("click! Form1.Command27");
  const forms::Window& form = *driver.Program().Touch("Form1");
  const auto& done = dynamic_cast<const forms::Label&>(*form.Find("lbln"));
  while (driver.Program().Tick()) {
    if (const double at = std::strtod(done.Caption().c_str(), nullptr); at > 0) {
      progress(static_cast<std::size_t>(at), words.size());
    }
  }
  std::string records = WithoutRepeatedBlock(ReadFile(target), words.back());
  if (version.concordance == reader::kVersions[1].concordance) {
    // The program's own tool cuts what follows one certain record, which is right where that record is the
    // true end; a text whose last word goes on behind it keeps the rest.
    driver.Execute("click! Form1.Command18");
    const std::string cut = ReadFile(bench / "CONCORD22.DAT");
    if (cut.ends_with(kTrueEnd) && records.ends_with(kTrueEnd)) records = cut;
  }
  fs::remove_all(bench);
  if (records.empty() || !complaint.empty())
    throw Obstacle("The concordance could not be built: " + complaint);
  WriteFile(data_folder + "/" + std::string(version.concordance), records);
  WriteFile(data_folder + "/conc.txt", list);
}

}  // namespace lectern::make_data
