// The gallery with a catalogue of 5,000 records, more than ten times the delivered one, beside what the same
// work costs at the least: reading the catalogue's lines, and decoding the pictures.
#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "base/files/file_system.h"
#include "bench/real_data.h"
#include "forms/picture.h"
#include "forms/text_controls.h"
#include "reader/canon.h"
#include "ui/headless/driver.h"
#include "ui/headless/headless_platform.h"

namespace {

namespace fs = std::filesystem;
using lectern::headless::Driver;
using lectern::reader::kCanon;

// A data folder with a catalogue and pictures of a pixel each, so that what is measured is the catalogue.
class Folder {
 public:
  explicit Folder(const std::vector<std::string>& places)
      : path_((fs::temp_directory_path() / ("lectern-bench-" + std::to_string(::getpid()))).string()) {
    fs::create_directories(path_ + "/pics");
    std::ofstream catalogue(path_ + "/pics2.dat", std::ios::binary);
    int number = 0;
    for (const std::string& place : places) {
      const std::string name = "picture" + std::to_string(number++ % 100);
      catalogue << '"' << name << "\",\"" << place << "\",\"PICTURES BY: A. Painter\"\r\n";
    }
    const std::string pixel = lectern::forms::BmpBytes(lectern::forms::Bitmap(1, 1));
    for (int i = 0; i < 100; ++i) {
      std::ofstream(path_ + "/pics/picture" + std::to_string(i) + ".jpg", std::ios::binary) << pixel;
    }
    std::ofstream(path_ + "/picend.jpg", std::ios::binary) << pixel;
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { fs::remove_all(path_); }
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

std::vector<std::string> PlacesEverywhere() {
  std::vector<std::string> places;
  for (int i = 0; i < 5000; ++i) {
    const std::string book(kCanon[static_cast<std::size_t>(i) % kCanon.size()]);
    places.push_back(book + " " + std::to_string(i % 20 + 1) + ": " + std::to_string(i % 30 + 1));
  }
  return places;
}

std::vector<std::string> PlacesInPsalms(int count) {
  std::vector<std::string> places;
  places.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) places.push_back("Psalms " + std::to_string(i * 7 % 150 + 1) + ": 1");
  return places;
}

lectern::forms::Label& LabelOf(Driver& driver, const char* name) {
  return dynamic_cast<lectern::forms::Label&>(*driver.Program().Touch("Form1")->Find(name));
}

void ReadTheLinesOf5000Records(benchmark::State& state) {
  const Folder folder(PlacesEverywhere());
  for (auto _ : state) {
    std::ifstream catalogue(folder.Path() + "/pics2.dat", std::ios::binary);
    std::string line;
    while (std::getline(catalogue, line)) benchmark::DoNotOptimize(line.data());
  }
}
BENCHMARK(ReadTheLinesOf5000Records)->Unit(benchmark::kMicrosecond);

// Writing the name of the book is what a click on it comes down to: the work file, the lists, the first page.
void ChangeBookWith5000Records(benchmark::State& state) {
  const Folder folder(PlacesEverywhere());
  Driver driver(folder.Path(), [](const std::string&) {});
  driver.Execute("start");
  lectern::forms::Label& lblbk = LabelOf(driver, "lblbk");
  std::size_t book = 0;
  for (auto _ : state) lblbk.Caption = std::string(kCanon[++book % kCanon.size()]);
}
BENCHMARK(ChangeBookWith5000Records)->Unit(benchmark::kMicrosecond);

// Every record in the book of 150 chapters, whose lists are in the order of 150 passes over its work file.
void OpenPsalmsWithRecords(benchmark::State& state) {
  const Folder folder(PlacesInPsalms(static_cast<int>(state.range(0))));
  Driver driver(folder.Path(), [](const std::string&) {});
  driver.Execute("start");
  lectern::forms::Label& lblbk = LabelOf(driver, "lblbk");
  for (auto _ : state) {
    state.PauseTiming();
    lblbk.Caption = "Jude";
    state.ResumeTiming();
    lblbk.Caption = "Psalms";
  }
}
BENCHMARK(OpenPsalmsWithRecords)->Arg(300)->Arg(5000)->Unit(benchmark::kMicrosecond);

void DecodeFivePictures(benchmark::State& state) {
  const lectern::files::FileSystem files(lectern::bench::DataFolder());
  const char* const names[] = {"earth", "creation1", "creation2", "creation3", "creation4"};
  for (auto _ : state) {
    for (const char* name : names) {
      lectern::files::Contents contents;
      files.Read("pics\\" + std::string(name) + ".jpg", contents);
      benchmark::DoNotOptimize(lectern::headless::DecodePicture(contents.Bytes()));
    }
  }
}
BENCHMARK(DecodeFivePictures)->Unit(benchmark::kMicrosecond);

void DrawPageOfFivePictures(benchmark::State& state) {
  Driver driver(lectern::bench::DataFolder(), [](const std::string&) {});
  driver.Execute("start");
  lectern::forms::Label& lblendpic = LabelOf(driver, "lblendpic");
  for (auto _ : state) {
    lblendpic.Caption = "";
    lblendpic.Caption = "4";
  }
}
BENCHMARK(DrawPageOfFivePictures)->Unit(benchmark::kMicrosecond);

}  // namespace
