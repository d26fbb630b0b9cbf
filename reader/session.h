// The start of the program and its ends.
#pragma once

#include "forms/containers.h"
#include "forms/lists.h"
#include "forms/text_controls.h"
#include "reader/reader.h"
#include "reader/settings.h"
#include "reader/tool_buttons.h"

namespace lectern::reader {

// What the start sets that belongs to features above.
struct StartUpControls {
  forms::DirListBox& Dirpics;
  forms::FileListBox& File1;
  forms::TextBox& Text2;
};

// What happens once, before the window is seen: the size and place of the window, the folders, the settings,
// the list of books, the fonts, and Genesis 1. The panels stand in their places already. No position is
// remembered from one run to the next. A step that fails does not keep the next one from running.
class StartUp {
 public:
  StartUp(Reader& the_reader, Settings& the_settings, StartUpControls the_controls)
      : reader_(the_reader), settings_(the_settings), controls_(the_controls) {}

  void Form_Load();

 private:
  void PlaceWindow();
  void FindFolders();
  void FillLists();

  Reader& reader_;
  Settings& settings_;
  StartUpControls controls_;
};

// The ways out. The exit button saves the font settings; the exit entry of the menu tries to, in an older
// layout, and fails; the window's close box saves nothing. Each ends the program at once: no other window is
// asked, and no handler runs any more.
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
