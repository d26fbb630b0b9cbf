// Plays a scenario script: a reader's story in the driver's language, with what each step must print
// beside it. Lines that begin with "|" are what the step above has to print, all of it and in order; "| …"
// stands for any number of lines. Lines that begin with "@" look after the story's data folder, a fresh
// copy of one of the folders in tests/data:
//
//   @data small|empty|real       which one (the first line; small where it is left out)
//   @write FILE "text"           a file of just that text    @append FILE "text"
//   @delete FILE · @copy A B     @folder NAME
//   @show FILE                   prints its lines; "missing" where there is none
//   @files FOLDER                prints the names in it
//   @restart                     starts the program anew in the same folder
//   @status N                    the exit status that the driver would end with
//
// usage: story-runner TESTS_FOLDER REAL_DATA_FOLDER SCRIPT [record]
//
// With `record` it writes the script with what each step prints now, for whoever writes one; what it wrote
// is to be read against what the program should do, line by line.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include "base/files/text_encoding.h"
#include "ui/headless/driver.h"

namespace {

namespace fs = std::filesystem;
using lectern::headless::Driver;
using lectern::headless::Word;

class Scenario {
 public:
  Scenario(fs::path tests, fs::path real, bool record)
      : tests_(std::move(tests)), real_(std::move(real)), record_(record) {
    folder_ = fs::temp_directory_path() / ("lectern-scenario-" + std::to_string(::getpid()));
    fs::remove_all(folder_);
    UseData("small");
  }
  ~Scenario() {
    driver_.reset();
    fs::remove_all(folder_);
  }

  // Whether every step printed what stands beside it.
  bool Play(const fs::path& script) {
    std::ifstream file(script);
    std::string line;
    while (std::getline(file, line)) {
      ++line_number_;
      if (line.starts_with("|")) {
        expected_.push_back(line.substr(std::min<std::size_t>(2, line.size())));
        continue;
      }
      Compare();
      if (record_) std::cout << line << "\n";
      step_line_ = line_number_;
      step_ = line;
      if (line.starts_with("@")) {
        Direct(line);
      } else {
        driver_->Execute(line);
      }
    }
    Compare();
    if (line_number_ == 0) Fail("the script cannot be read");
    return !failed_;
  }

 private:
  void Fail(const std::string& reason) {
    failed_ = true;
    std::cout << "line " << step_line_ << ": " << step_ << "\n  " << reason << "\n";
  }

  // What was printed against what was expected; an ellipsis takes lines until the next expected one fits.
  void Compare() {
    if (record_) {
      for (const std::string& line : printed_) std::cout << "| " << line << "\n";
      printed_.clear();
      expected_.clear();
    }
    std::size_t at = 0;
    bool skipping = false;
    bool fits = true;
    for (const std::string& wanted : expected_) {
      if (wanted == "…") {
        skipping = true;
        continue;
      }
      while (skipping && at < printed_.size() && printed_[at] != wanted) ++at;
      skipping = false;
      fits = fits && at < printed_.size() && printed_[at] == wanted;
      ++at;
    }
    if (!fits || (!skipping && at != printed_.size())) {
      std::string report = "expected:";
      for (const std::string& wanted : expected_) report += "\n    | " + wanted;
      report += "\n  printed:";
      for (const std::string& line : printed_) report += "\n    | " + line;
      Fail(report);
    }
    expected_.clear();
    printed_.clear();
  }

  void UseData(const std::string& name) {
    driver_.reset();
    fs::remove_all(folder_);
    if (name == "empty") {
      fs::create_directories(folder_);
    } else {
      fs::copy(name == "real" ? real_ : tests_ / "data" / name, folder_, fs::copy_options::recursive);
    }
    Restart();
  }

  void Restart() {
    driver_.reset();
    driver_ = std::make_unique<Driver>(
        folder_.string(), [this](const std::string& line) { printed_.push_back(WithoutFolder(line)); });
  }

  // The data folder's own path is no part of a story.
  std::string WithoutFolder(std::string line) const {
    const std::string path = folder_.string();
    for (std::size_t at = line.find(path); at != std::string::npos; at = line.find(path)) {
      line.replace(at, path.size(), "DATA");
    }
    return line;
  }

  void Direct(const std::string& line) {
    const auto words = lectern::headless::Words(line);
    if (!words || words->empty()) return Fail("a directive that cannot be read");
    const std::string& name = (*words)[0].text;
    const auto word = [&](std::size_t i) { return i < words->size() ? (*words)[i].text : std::string(); };
    const fs::path path = folder_ / word(1);
    if (name == "@data") {
      UseData(word(1));
    } else if (name == "@write" || name == "@append") {
      fs::create_directories(path.parent_path());
      std::ofstream(path, std::ios::binary | (name == "@write" ? std::ios::trunc : std::ios::app)) << word(2);
    } else if (name == "@delete") {
      fs::remove_all(path);
    } else if (name == "@copy") {
      fs::copy(path, folder_ / word(2), fs::copy_options::recursive);
    } else if (name == "@folder") {
      fs::create_directories(path);
    } else if (name == "@show") {
      Show(path);
    } else if (name == "@files") {
      for (const std::string& file : driver_->Files().Files(path.string(), "*")) printed_.push_back(file);
    } else if (name == "@restart") {
      Restart();
    } else if (name == "@status") {
      printed_.push_back(std::to_string(driver_->ExitStatus()));
    } else {
      Fail("no directive " + name);
    }
  }

  void Show(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return printed_.emplace_back("missing"), void();
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    std::string text = lectern::files::Decode(bytes);
    while (!text.empty()) {
      const std::size_t end = text.find("\r\n");
      printed_.push_back(text.substr(0, end) + (end == std::string::npos ? " (no line end)" : ""));
      text.erase(0, end == std::string::npos ? end : end + 2);
    }
  }

  fs::path tests_, real_, folder_;
  bool record_;
  std::unique_ptr<Driver> driver_;
  std::vector<std::string> expected_, printed_;
  std::string step_;
  int step_line_ = 0;
  int line_number_ = 0;
  bool failed_ = false;
};

}  // namespace

int main(int count, char** arguments) {
  if (count != 4 && count != 5) return 2;
  return Scenario(arguments[1], arguments[2], count == 5).Play(arguments[3]) ? 0 : 1;
}
