// The versions of the text: all that the program and its data tool know of each. What the options of the
// window pick is a row of this table.
#pragma once

#include <array>
#include <string_view>

namespace lectern::reader {

struct Version {
  std::string_view option;       // the control that sets it
  std::string_view name;         // "King James Version"
  std::string_view label;        // the short name, beside its option
  std::string_view folder;       // of its books, in the data folder
  std::string_view prefix;       // in front of the stem of a book's file
  std::string_view concordance;  // its file in the data folder
};

inline constexpr std::array kVersions = {
    Version{"optk", "King James Version", "KJV", "KJV", "", "CONCORD.DAT"},
    Version{"optn", "Revised Standard Version", "NEW", "NEW", "N", "CONCORD2.DAT"},
};

}  // namespace lectern::reader
