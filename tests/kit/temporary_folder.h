// A data folder that goes away again.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace lectern {

// "(missing)" where there is no such file.
inline std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return file ? std::string{std::istreambuf_iterator<char>(file), {}} : "(missing)";
}

// Makes the folders that it needs.
inline void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

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
    WriteFile(path_ + "/" + name, bytes);
  }
  std::string Read(const std::string& name) const { return ReadFile(path_ + "/" + name); }

 private:
  std::string path_;
};

}  // namespace lectern
