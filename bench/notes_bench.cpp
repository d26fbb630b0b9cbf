// Opening and saving a note of 5 MB, beside the plain read or write of a file of that size, and a letter
// typed in its middle. Notes of three scripts: ASCII, western letters, Greek.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"
#include "ui/headless/driver.h"

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kSize = 5'000'000;  // bytes in the file

constexpr const char* kLines[] = {
    "And Ruth said, Intreat me not to leave thee, or to return from following after thee.\r\n",
    "Le café était fermé; la forêt, où l’été s’achève, gardait ses chênes et ses hêtres.\r\n",
    "ἐν ἀρχῇ ἦν ὁ λόγος, καὶ ὁ λόγος ἦν πρὸς τὸν θεόν, καὶ θεὸς ἦν ὁ λόγος.\r\n",
};

// A folder with one such note in it, and the program with the note open.
class OpenNote {
 public:
  explicit OpenNote(std::int64_t script) {
    fs::create_directories(folder_);
    const std::string line = lectern::files::Encode(kLines[script]);
    std::string bytes;
    while (bytes.size() < kSize) bytes += line;
    std::ofstream(folder_ + "/large.not", std::ios::binary) << bytes;
    driver_.Execute("click Form1.cc0");
    Open();
    notes_ = driver_.Program().Touch("Form3");
  }
  ~OpenNote() { fs::remove_all(folder_); }

  void Open() { driver_.Execute("click! Form3.File1 \"large.not\""); }
  void Save() { driver_.Execute("click Form3.f3"); }
  lectern::forms::RichTextBox& Text() const {
    return dynamic_cast<lectern::forms::RichTextBox&>(*notes_->Find("txthelp"));
  }
  std::string Path() const { return folder_ + "/large.not"; }

 private:
  std::string folder_ =
      (fs::temp_directory_path() / ("lectern-bench-" + std::to_string(::getpid()))).string();
  lectern::headless::Driver driver_{(fs::create_directories(folder_), folder_), [](const std::string&) {}};
  lectern::forms::Window* notes_ = nullptr;
};

void PlainRead(benchmark::State& state) {
  const OpenNote note(0);
  std::vector<char> room(2 * kSize);
  for (auto _ : state) {
    const int file = ::open(note.Path().c_str(), O_RDONLY);
    benchmark::DoNotOptimize(::read(file, room.data(), room.size()));
    benchmark::ClobberMemory();
    ::close(file);
  }
}
BENCHMARK(PlainRead)->Unit(benchmark::kMillisecond);

void LoadNote(benchmark::State& state) {
  OpenNote note(state.range(0));
  for (auto _ : state) note.Open();
}
BENCHMARK(LoadNote)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void PlainWrite(benchmark::State& state) {
  const OpenNote note(0);
  const std::string path = note.Path() + ".plain";
  const std::vector<char> room(kSize);
  for (auto _ : state) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    benchmark::DoNotOptimize(::write(file, room.data(), room.size()));
    ::close(file);
  }
}
BENCHMARK(PlainWrite)->Unit(benchmark::kMillisecond);

void SaveNote(benchmark::State& state) {
  OpenNote note(state.range(0));
  for (auto _ : state) note.Save();
}
BENCHMARK(SaveNote)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void TypeALetter(benchmark::State& state) {
  const OpenNote note(state.range(0));
  lectern::forms::RichTextBox& text = note.Text();
  const std::size_t middle = lectern::text::Length(text.Text()) / 2;
  for (auto _ : state) {
    text.PersonEdits(middle, 0, "x");
    text.PersonEdits(middle, 1, "");
  }
}
BENCHMARK(TypeALetter)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

}  // namespace
