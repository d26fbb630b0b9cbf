// The ways out. The exit button saves the font settings; the exit entry of the menu tries to, in an older
// layout, and fails; the window's close box saves nothing. Each ends the program at once: no other window is
// asked, and no handler runs any more.
#pragma once

#include "forms/menu.h"
#include "reader/reader.h"
#include "reader/settings.h"
#include "reader/tool_buttons.h"

namespace lectern::reader {

class Exits {
 public:
  Exits(Reader& the_reader, Settings& the_settings, ToolButtons& tools, forms::Menu& xx, forms::Menu& oo12);

  [[noreturn]] void Form_Unload();

 private:
  void Command1_Click();
  void xx_Click();
  void oo12_Click();

  Reader& reader_;
  Settings& settings_;
  forms::Menu& oo12_;  // whether the settings are saved
};

}  // namespace lectern::reader
