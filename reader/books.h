// The versions of the text, and how many chapters their books have.
#pragma once

#include <array>
#include <deque>
#include <optional>
#include <string_view>

#include "forms/buttons.h"
#include "forms/text_controls.h"
#include "forms/window.h"

namespace lectern::reader {

class Reader;

// All that the program and its data tool know about a version. To add a version, add a row, places for its
// two controls, and its text in the data folder.
struct Version {
  std::string_view name;         // "King James Version"
  std::string_view label;        // the short name, next to its option
  std::string_view folder;       // of its books, in the data folder
  std::string_view prefix;       // in front of the stem of a book's file
  std::string_view concordance;  // its file in the data folder
  const char* option;            // the names of its option and of the label next to it
  const char* option_label;
};

inline constexpr std::array kVersions = {
    Version{"King James Version", "KJV", "KJV", "", "CONCORD.DAT", "optk", "Label34"},
    Version{"Revised Standard Version", "NEW", "NEW", "N", "CONCORD2.DAT", "optn", "Label35"},
};

// The options that select a version.
class VersionOptions {
 public:
  explicit VersionOptions(forms::Window& form);

  // The first version whose option is set, or else the last one, whose option is never read.
  const Version& Current() const;
  const Version& Other() const;  // the first one that is not current

  std::deque<forms::OptionButton> options;  // in the order of kVersions; the first is set at the start

 private:
  std::deque<forms::Label> labels_;
};

// Makes `bookschap.txt`, which holds the name and the number of chapters of each book.
class ChapterCounts {
 public:
  ChapterCounts(forms::Window& form, Reader& the_reader);

 private:
  void Command12_Click();

  forms::Window& form_;
  Reader& reader_;
  forms::CommandButton Command12{
      form_, "Command12", {.caption = "make baokschap.txt"}};  // for preparing data
};

// Looks up the number of chapters of a book in such a file, ignoring case. The last record with a number
// wins. Returns nothing if there is no record or the file cannot be read.
std::optional<int> ChapterCount(forms::Window& form, std::string_view path, std::string_view book);

}  // namespace lectern::reader
