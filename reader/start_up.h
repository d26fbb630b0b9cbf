// What happens once, before the window is seen: the size and place of the window, the folders, the settings,
// the list of books, the fonts, and Genesis 1. The panels stand in their places already. No position is
// remembered from one run to the next. Nothing that fails here stops the start: each step stands for itself.
#pragma once

#include <functional>

#include "forms/combo_box.h"
#include "forms/folder_lists.h"
#include "forms/text_box.h"
#include "reader/reader.h"

namespace lectern::reader {

// What the start sets that belongs to features above.
struct StartUpControls {
  forms::DirListBox& Dirpics;
  forms::FileListBox& File1;
  forms::TextBox& Text2;
  forms::ComboBox& Combo1;
  forms::ComboBox& Combo2;
  forms::ComboBox& Combo3;
};

class StartUp {
 public:
  StartUp(Reader& the_reader, StartUpControls the_controls);

  void Form_Load();

  // Reads `codex.cfg` and applies it.
  std::function<void()> ReadSettings;

 private:
  void PlaceWindow();
  void FindFolders();
  void LoadSettings();
  void FillLists();

  Reader& reader_;
  StartUpControls controls_;
};

}  // namespace lectern::reader
