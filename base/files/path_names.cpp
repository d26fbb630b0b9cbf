#include "base/files/path_names.h"

#include <algorithm>
#include <iterator>

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

namespace {

struct Form {
  char plain;
  std::string_view stored;
};

constexpr Form kForms[] = {{':', "："}, {'*', "＊"}, {'?', "？"}, {'"', "＂"},
                           {'<', "＜"}, {'>', "＞"}, {'|', "｜"}};
constexpr char kFirstByte = '\xEF';  // of all these forms

}  // namespace

std::string StoredName(std::string_view element) {
  std::string stored;
  stored.reserve(element.size());
  for (const char c : element) {
    const auto* const form =
        std::find_if(std::begin(kForms), std::end(kForms), [c](const Form& each) { return each.plain == c; });
    form == std::end(kForms) ? stored.append(1, c) : stored.append(form->stored);
  }
  return stored;
}

std::string PlainName(std::string_view element) {
  std::string plain(element);
  if (plain.find(kFirstByte) == std::string::npos) return plain;
  for (const Form& form : kForms) {
    for (std::size_t at = plain.find(form.stored); at != std::string::npos;
         at = plain.find(form.stored, at)) {
      plain.replace(at, form.stored.size(), 1, form.plain);
    }
  }
  return plain;
}

bool IsAccepted(std::string_view element) {
  constexpr char kDelete = 0x7F;
  return std::none_of(element.begin(), element.end(),
                      [](char c) { return (c >= 0 && c < ' ') || c == kDelete; });
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
