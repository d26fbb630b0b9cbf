// The desktop as it is without a screen: boxes find their answers laid ready, and what would be seen or
// heard is written as a line of text.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "base/platform.h"

namespace lectern::headless {

// What the next box that opens is answered.
struct Answer {
  enum class Kind { kText, kYes, kNo, kOk, kCancel };
  Kind kind = Kind::kOk;
  std::string text;
};

class HeadlessPlatform : public base::Platform {
 public:
  // Each event goes to `event` as one line without its end.
  explicit HeadlessPlatform(std::function<void(const std::string&)> event);

  void Message(std::string_view text, std::string_view title) override;
  bool Question(std::string_view text, std::string_view title) override;
  std::string Input(std::string_view prompt, std::string_view title, std::string_view proposed) override;
  void Beep() override;
  base::Date Today() override;
  void SeedRandom() override;
  double Random() override;
  std::vector<std::string> FontNames() override { return fonts; }
  base::ScreenSize Screen() override { return screen; }
  forms::Picture DecodePicture(std::string_view bytes) override;
  void PrintForm(forms::Window& window) override;
  bool OpenInBrowser(std::string_view address) override;

  // What a script lays ready.
  std::deque<Answer> answers;
  std::deque<double> random_numbers;  // before the real source goes on
  std::optional<base::Date> date;     // the clock's where not set
  base::ScreenSize screen;
  std::vector<std::string> fonts;
  bool has_printer = false;

 private:
  std::optional<Answer> NextAnswer();

  std::function<void(const std::string&)> event_;
  std::mt19937_64 random_;
};

}  // namespace lectern::headless
