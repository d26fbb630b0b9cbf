// Names of files as the program writes them: elements joined by a backslash, a forward slash being as
// good, compared without regard to case.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lectern::files {

constexpr bool IsSeparator(char c) { return c == '\\' || c == '/'; }

// The elements between the separators; empty ones are left out.
std::vector<std::string_view> Elements(std::string_view name);

// Whether an element may be a name: not one that holds : * ? " < > or |. The same on every system, so that
// a data folder can move between them.
bool IsAccepted(std::string_view element);

// Whether a file's name fits a pattern such as "*.bkm", where * stands for any characters and ? for one.
// Case does not matter.
bool FitsPattern(std::string_view file, std::string_view pattern);

}  // namespace lectern::files
