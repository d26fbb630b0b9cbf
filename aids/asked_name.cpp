#include "aids/asked_name.h"

namespace lectern::aids {

static std::string TwoDigits(int number) { return std::to_string(100 + number % 100).substr(1); }

std::string AskForName(base::Platform& platform, std::string_view prompt, std::string_view title) {
  const base::Date today = platform.Today();
  const std::string proposed =
      TwoDigits(today.month) + " - " + TwoDigits(today.day) + " - " + TwoDigits(today.year);
  std::string name;
  for (const char c : platform.Input(prompt, title, proposed)) {
    name += c == '"' ? "''" : c == '\\' || c == '/' ? "'" : std::string(1, c);
  }
  return name;
}

}  // namespace lectern::aids
