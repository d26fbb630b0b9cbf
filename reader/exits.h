// The ways out. The exit button saves the font settings; the exit entry of the menu means to, in an older
// layout, and fails; the window's close box saves nothing. All end the program at once: no other window is
// asked, and no handler runs any more.
#pragma once

#include "forms/combo_box.h"
#include "reader/menus.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"

namespace lectern::reader {

// The texts of the settings panel that are saved: font, size, style.
struct SettingTexts {
  forms::ComboBox& Combo1;
  forms::ComboBox& Combo2;
  forms::ComboBox& Combo3;
};

class Exits {
 public:
  Exits(Reader& the_reader, Menus& the_menus, ToolButtons& tools, SettingTexts the_settings);

  [[noreturn]] void Form_Unload();

 private:
  void Command1_Click();
  void xx_Click();
  void oo12_Click();

  Reader& reader_;
  Menus& menus_;
  SettingTexts settings_;
};

}  // namespace lectern::reader
