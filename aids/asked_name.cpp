#include "aids/asked_name.h"

namespace lectern::aids {

namespace {

std::string TwoDigits(int number) {
  constexpr int kCentury = 100;
  const std::string digits = std::to_string(number % kCentury);
  return digits.size() < 2 ? "0" + digits : digits;
}

}  // namespace

std::string CleanName(std::string_view name) {
  std::string clean;
  for (const char c : name) {
    if (c == '"') {
      clean += "''";
    } else {
      clean += c == '\\' || c == '/' ? '\'' : c;
    }
  }
  return clean;
}

std::string AskForName(base::Platform& platform, std::string_view prompt, std::string_view title) {
  const base::Date today = platform.Today();
  const std::string proposed =
      TwoDigits(today.month) + " - " + TwoDigits(today.day) + " - " + TwoDigits(today.year);
  return CleanName(platform.Input(prompt, title, proposed));
}

}  // namespace lectern::aids
