// A small world for unit tests: a temporary data folder, and a desktop that remembers what it was asked.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "forms/window.h"
#include "ui/headless/headless_platform.h"

namespace lectern {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "lectern-XXXXXX").string();
    path_ = ::mkdtemp(pattern.data());
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }

  const std::string& Path() const { return path_; }
  void Write(const std::string& name, const std::string& bytes) const {
    std::filesystem::create_directories(std::filesystem::path(path_ + "/" + name).parent_path());
    std::ofstream(path_ + "/" + name, std::ios::binary) << bytes;
  }
  // "(missing)" where there is no such file.
  std::string Read(const std::string& name) const {
    std::ifstream file(path_ + "/" + name, std::ios::binary);
    return file ? std::string{std::istreambuf_iterator<char>(file), {}} : "(missing)";
  }

 private:
  std::string path_;
};

// A window with nothing on it, over a data folder of its own.
struct TestWindow {
  TemporaryFolder folder;
  std::vector<std::string> events;
  headless::HeadlessPlatform platform{[this](const std::string& line) { events.push_back(line); }};
  files::FileSystem files{folder.Path()};
  forms::Window form{{platform, files}, "Form1", "Test"};
};

// The number of the run-time error that an action raises; 0 where it raises none.
template <class Action>
int ErrorOf(Action&& action) {
  try {
    action();
    return 0;
  } catch (const base::RunTimeError& error) {
    return error.number();
  }
}

}  // namespace lectern
