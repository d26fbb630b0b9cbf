// Building a concordance, beside a read of the 66 files for each word; opening the panel on the full file,
// and a click on a word.
#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bench/plain_read.h"
#include "bench/real_data.h"
#include "ui/headless/driver.h"

namespace {

namespace fs = std::filesystem;
using lectern::bench::DataFolder;
using lectern::headless::Driver;

std::vector<std::string> SampledWords(std::size_t count) {
  std::ifstream file(DataFolder() + "/conc.txt");
  std::vector<std::string> all;
  for (std::string word; std::getline(file, word);) all.push_back(word.substr(0, word.find('\r')));
  std::vector<std::string> words;
  for (std::size_t i = 0; i < count; ++i) words.push_back(all[i * all.size() / count]);
  return words;
}

// A folder to build in, with the texts in it and a list of words.
fs::path Bench(const std::vector<std::string>& words) {
  fs::path folder = fs::temp_directory_path() / "lectern-concordance-bench";
  fs::remove_all(folder);
  fs::create_directories(folder);
  fs::create_directory_symlink(DataFolder() + "/KJV", folder / "KJV");
  std::ofstream list(folder / "conc.txt");
  for (const std::string& word : words) list << word << "\r\n";
  return folder;
}

constexpr std::size_t kWords = 200;

void ReadOf66FilesForEachWord(benchmark::State& state) {
  const lectern::bench::PlainRead read;
  for (auto _ : state) {
    for (std::size_t i = 0; i < kWords; ++i) read.All();
  }
}
BENCHMARK(ReadOf66FilesForEachWord)->Unit(benchmark::kMillisecond);

void BuildConcordanceOf200Words(benchmark::State& state) {
  const fs::path folder = Bench(SampledWords(kWords));
  for (auto _ : state) {
    std::ofstream(folder / "CONCORD.DAT").close();
    Driver driver(folder.string(), [](const std::string&) {});
    driver.Execute("click! Form1.Command27");
    driver.Execute("run");
  }
  state.counters["bytes"] = static_cast<double>(fs::file_size(folder / "CONCORD.DAT"));
}
BENCHMARK(BuildConcordanceOf200Words)->Unit(benchmark::kMillisecond);

void OpenPanel(benchmark::State& state) {
  Driver driver(DataFolder(), [](const std::string&) {});
  for (auto _ : state) driver.Execute("click Form1.cc1");
}
BENCHMARK(OpenPanel)->Unit(benchmark::kMillisecond);

void ClickOnWord(benchmark::State& state) {
  Driver driver(DataFolder(), [](const std::string&) {});
  driver.Execute("click Form1.cc1");
  // A click on the word that is shown already reads nothing.
  bool first = false;
  for (auto _ : state) {
    first = !first;
    driver.Execute(first ? "click Form1.lstc 1000" : "click Form1.lstc 3000");
  }
}
BENCHMARK(ClickOnWord)->Unit(benchmark::kMillisecond);

}  // namespace
