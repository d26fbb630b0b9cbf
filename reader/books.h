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

// All that the program and its data tool know of a version. A further version is a further row, a place for
// its two controls, and its text in the data folder.
struct Version {
  std::string_view name;         // "King James Version"
  std::string_view label;        // the short name, beside its option
  std::string_view folder;       // of its books, in the data folder
  std::string_view prefix;       // in front of the stem of a book's file
  std::string_view concordance;  // its file in the data folder
  const char* option;            // the controls: the option, and the label beside it
  const char* option_label;
};

inline constexpr std::array kVersions = {
    Version{"King James Version", "KJV", "KJV", "", "CONCORD.DAT", "optk", "Label34"},
    Version{"Revised Standard Version", "NEW", "NEW", "N", "CONCORD2.DAT", "optn", "Label35"},
};

// The options of the window that pick a version.
class VersionOptions {
 public:
  explicit VersionOptions(forms::Window& form);

  // The first version whose option is set. The option of the last one is never read: it is current where no
  // other is.
  const Version& Current() const;

  std::deque<forms::OptionButton> options;  // in the order of the table; the first is set at the start

 private:
  std::deque<forms::Label> labels_;
};

// How many chapters each book has: the file `bookschap.txt`, with a record for each book, its name in quotes
// and the count.
class ChapterCounts {
 public:
  ChapterCounts(forms::Window& form, Reader& the_reader);

 private:
  void Command12_Click();

  forms::Window& form_;
  Reader& reader_;
  // Makes the file, for preparing the data.
  forms::CommandButton Command12{form_, "Command12", {.caption = "make baokschap.txt"}};
};

// The number of chapters of a book, whose name is compared without regard to case; nothing where the file has
// no record of it or cannot be read. Of several records the last one that holds a number counts.
std::optional<int> ChapterCount(forms::Window& form, std::string_view path, std::string_view book);

}  // namespace lectern::reader
