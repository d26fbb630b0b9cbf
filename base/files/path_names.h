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

// A name is stored with full-width forms in place of : * ? " < > and |, which some systems refuse, so that a
// data folder can move between them. It is shown and compared with the plain characters.
std::string StoredName(std::string_view element);
std::string PlainName(std::string_view element);

// Whether an element may be a name: not one with a control character.
bool IsAccepted(std::string_view element);

// Whether a file's name fits a pattern such as "*.bkm", where * stands for any characters and ? for one.
// Case does not matter.
bool FitsPattern(std::string_view file, std::string_view pattern);

}  // namespace lectern::files
