// The platform as the windows see it: before a box opens, what the event has written so far is on the disk.
// So what a box reports as done survives a power cut, however long the box stays open.
#pragma once

#include "base/platform.h"
#include "forms/window.h"

namespace lectern::ui {

class SettledBoxes : public base::Platform {
 public:
  explicit SettledBoxes(forms::Services host) : host_(host) {}

  // Errors of the file system too.
  void Message(std::string_view text, std::string_view title) override {
    host_.files.Settle();
    host_.platform.Message(text, title);
  }
  bool Question(std::string_view text, std::string_view title) override {
    host_.files.Settle();
    return host_.platform.Question(text, title);
  }
  std::string Input(std::string_view prompt, std::string_view title, std::string_view proposed) override {
    host_.files.Settle();
    return host_.platform.Input(prompt, title, proposed);
  }

  void Beep() override { host_.platform.Beep(); }
  base::Date Today() override { return host_.platform.Today(); }
  void SeedRandom() override { host_.platform.SeedRandom(); }
  double Random() override { return host_.platform.Random(); }
  std::vector<std::string> FontNames() override { return host_.platform.FontNames(); }
  base::ScreenSize Screen() override { return host_.platform.Screen(); }
  forms::Picture DecodePicture(std::string_view bytes) override {
    return host_.platform.DecodePicture(bytes);
  }
  void PrintForm(forms::Window& window) override { host_.platform.PrintForm(window); }
  bool OpenInBrowser(std::string_view address) override { return host_.platform.OpenInBrowser(address); }

 private:
  forms::Services host_;
};

}  // namespace lectern::ui
