#include "base/files/path_names.h"

#include <algorithm>

#include "base/text/characters.h"

namespace lectern::files {

std::vector<std::string_view> Elements(std::string_view name) {
  std::vector<std::string_view> elements;
  while (!name.empty()) {
    const auto* const end = std::find_if(name.begin(), name.end(), IsSeparator);
    const auto length = static_cast<std::size_t>(end - name.begin());
    if (length > 0) elements.push_back(name.substr(0, length));
    name.remove_prefix(std::min(length + 1, name.size()));
  }
  return elements;
}

bool IsAccepted(std::string_view element) {
  constexpr std::string_view kRefused{":*?\"<>|\0", 8};
  return element.find_first_of(kRefused) == std::string_view::npos;
}

namespace {

// Both sides in lower case. A star takes as few characters as will do and more when the rest does not fit.
bool Fits(std::string_view file, std::string_view pattern) {
  std::size_t f = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t taken = 0;
  while (f < file.size()) {
    std::size_t next = f;
    text::NextCharacter(file, next);
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      taken = f;
    } else if (p < pattern.size() && pattern[p] == '?') {
      ++p;
      f = next;
    } else if (p < pattern.size() && pattern[p] == file[f]) {
      ++p;
      ++f;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      text::NextCharacter(file, taken);
      f = taken;
    } else {
      return false;
    }
  }
  return std::all_of(pattern.begin() + static_cast<std::ptrdiff_t>(p), pattern.end(),
                     [](char c) { return c == '*'; });
}

}  // namespace

bool FitsPattern(std::string_view file, std::string_view pattern) {
  return Fits(text::Lower(file), text::Lower(pattern));
}

}  // namespace lectern::files
