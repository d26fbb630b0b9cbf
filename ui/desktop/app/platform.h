// What the program asks of the desktop: boxes, clock, chance, printer, screen, pictures and browser.
#pragma once

#include <QWidget>
#include <functional>
#include <random>

#include "base/errors.h"
#include "base/platform.h"

namespace lectern::desktop {

class DesktopPlatform : public base::Platform {
 public:
  DesktopPlatform();

  void Message(std::string_view text, std::string_view title = base::kProgramName) override;
  bool Question(std::string_view text, std::string_view title) override;
  std::string Input(std::string_view prompt, std::string_view title, std::string_view proposed) override;
  void Beep() override;
  base::Date Today() override;
  void SeedRandom() override;
  double Random() override;
  std::vector<std::string> FontNames() override;
  base::ScreenSize Screen() override;
  forms::Picture DecodePicture(std::string_view bytes) override;
  void PrintForm(forms::Window& window) override;
  bool OpenInBrowser(std::string_view address) override;

  // The box of a failure that nothing trapped.
  void Report(const base::RunTimeError& error);

  // Ahead of a box: shows what stands so far, and says over which window the box belongs.
  std::function<QWidget*()> before_box;

  // The face of a window without its menu bar, as it would be printed.
  std::function<void(forms::Window&, const std::function<void(QWidget&)>& print)> with_face;

 private:
  std::mt19937 chance_;
};

}  // namespace lectern::desktop
