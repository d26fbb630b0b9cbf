// The start of the program and the ways to end it.
#pragma once

#include "forms/containers.h"
#include "forms/lists.h"
#include "forms/text_controls.h"
#include "reader/reader.h"
#include "reader/settings.h"
#include "reader/tool_buttons.h"

namespace lectern::reader {

// Controls of higher layers that the start sets.
struct StartUpControls {
  forms::DirListBox& Dirpics;
  forms::FileListBox& File1;
  forms::TextBox& Text2;
};

// Runs once, before the window is shown: sets the window's size and place, the folders, the settings, the
// list of books and the fonts, and opens Genesis 1. If a step fails, the next one still runs.
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

// The ways to end the program. The exit button saves the font settings; the menu's exit entry tries to, in an
// older layout, and fails; the window's close box saves nothing. Each ends the program at once, without
// running any other handler.
class Exits {
 public:
  Exits(Reader& the_reader, Settings& the_settings, ToolButtons& tools, forms::Menu& xx, forms::Menu& oo12);

  [[noreturn]] void Form_Unload();

 private:
  void Command1_Click();
  void xx_Click();

  Reader& reader_;
  Settings& settings_;
  forms::Menu& oo12_;  // whether the settings are saved
};

}  // namespace lectern::reader
