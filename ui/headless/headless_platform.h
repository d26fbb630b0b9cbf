// The platform without a screen: boxes take answers that were prepared, and what would be seen or heard is
// printed as a line of text.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "base/platform.h"

namespace lectern::headless {

// The answer to the next box that opens.
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

  // What a script has prepared.
  std::deque<Answer> answers;
  std::deque<double> random_numbers;  // used before the real source
  std::optional<base::Date> date;     // the clock's date where not set
  base::ScreenSize screen;
  std::vector<std::string> fonts;
  bool has_printer = false;

 private:
  std::optional<Answer> NextAnswer();

  std::function<void(const std::string&)> event_;
  std::mt19937_64 random_;
};

// The picture in the bytes of a JPEG, PNG, GIF, BMP or ICO file. Error 481 where they are not a picture.
forms::Picture DecodePicture(std::string_view bytes);

}  // namespace lectern::headless
