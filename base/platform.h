// What the program needs of the desktop it runs on, in one interface: boxes, clock, chance, printer,
// screen, pictures and browser. Each layer brings its own. Handlers call it, all on one thread. A box returns
// when the person has answered; no other event is delivered meanwhile.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lectern::forms {
class Picture;
class Window;
}  // namespace lectern::forms

namespace lectern::base {

inline constexpr std::string_view kProgramName = "Lectern 2";

struct Date {
  int year = 0;
  int month = 1;
  int day = 1;
};

// In twips.
struct ScreenSize {
  double width = 0;
  double height = 0;
};

class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  // Modal boxes. An input box that is cancelled gives "".
  virtual void Message(std::string_view text, std::string_view title = kProgramName) = 0;
  virtual bool Question(std::string_view text, std::string_view title) = 0;  // whether Yes
  virtual std::string Input(std::string_view prompt, std::string_view title, std::string_view proposed) = 0;
  virtual void Beep() = 0;

  virtual Date Today() = 0;
  virtual void SeedRandom() = 0;  // from the clock
  virtual double Random() = 0;    // from 0 up to but not 1

  virtual std::vector<std::string> FontNames() = 0;
  virtual ScreenSize Screen() = 0;

  // The picture in the bytes of a file, going by the bytes and not by the file's name; error 481 where
  // they are no picture.
  virtual forms::Picture DecodePicture(std::string_view bytes) = 0;

  // Sends a window's client area, controls included, to the default printer; error 482 if there is none.
  virtual void PrintForm(forms::Window& window) = 0;

  // Hands an address to the default browser; whether it was accepted.
  virtual bool OpenInBrowser(std::string_view address) = 0;
};

}  // namespace lectern::base
