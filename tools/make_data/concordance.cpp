#include "tools/make_data/concordance.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include "base/text/characters.h"
#include "forms/text_controls.h"
#include "tools/make_data/book_files.h"
#include "ui/headless/driver.h"

namespace lectern::make_data {

namespace fs = std::filesystem;

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

// The words of a verse as the scan finds them: behind a blank, up to the first character that is no letter.
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

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The records of the last word, which stand twice at the end, once.
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
  // The tool makes its files in the folder that it reads the books from: it gets a folder of its own.
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
    // The program's own tool cuts the repeated block behind one certain record. It serves where that record
    // is the true end; a text whose last word goes on behind it keeps the rest.
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
