// The data folder that a story plays in, and the story's commands for it.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "tests/kit/lines.h"

namespace lectern::kit {

class StoryFolder {
 public:
  // The folder itself, the folders of data below tests/data, and that of the real texts.
  StoryFolder(std::filesystem::path folder, std::filesystem::path data, std::filesystem::path real);

  std::string Path() const { return folder_.string(); }

  // Makes the folder a fresh copy of one of the folders of data; "empty" and "real" are known as well.
  void Use(const std::string& name);

  // Runs one of the commands (`@write`, `@show`, …; see story.h) and returns what it prints. Nothing where
  // there is no such command. The lines are those to be written.
  std::optional<Lines> Run(const std::string& command, const std::string& file, const std::string& second,
                           const Lines& lines);

 private:
  Lines Write(const std::string& file, bool append, const std::string& text, const Lines& lines);
  Lines Changes(const std::string& file, const std::string& other);
  Lines LinesOf(const std::filesystem::path& path) const;
  Lines NamesIn(const std::filesystem::path& path) const;

  std::filesystem::path folder_, data_, real_;
  std::filesystem::path origin_;       // what the folder is a copy of
  std::map<std::string, Lines> seen_;  // files and folders as they were last written or shown
};

}  // namespace lectern::kit
