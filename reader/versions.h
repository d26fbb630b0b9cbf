// The versions of the text: all that the program and its data tool know of each, and the options of the
// window that pick one. A further version is a further row, a place for its two controls, and its text in the
// data folder.
#pragma once

#include <array>
#include <deque>
#include <string_view>

#include "forms/buttons.h"
#include "forms/text_controls.h"

namespace lectern::reader {

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

class VersionOptions {
 public:
  explicit VersionOptions(forms::Window& form);

  // The first version whose option is set. The last one's option is never read: without another it is the
  // one.
  const Version& Current() const;

  std::deque<forms::OptionButton> options;  // in the order of the table; the first is set at the start

 private:
  std::deque<forms::Label> labels_;
};

}  // namespace lectern::reader
