// What the program needs from the desktop: boxes, clock, random numbers, printer, screen, pictures and
// browser.
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

  // Reports a failure that nothing trapped.
  void Report(const base::RunTimeError& error);

  // Called before a box opens: shows the results so far and returns the window that the box belongs to.
  std::function<QWidget*()> before_box;

  // Calls `print` with the face of a window, without its menu bar, ready to be printed.
  std::function<void(forms::Window&, const std::function<void(QWidget&)>& print)> with_face;

 private:
  std::mt19937 random_;
};

}  // namespace lectern::desktop
