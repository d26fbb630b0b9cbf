// What happens once, before the window is seen: the size and place of the window, the folders, the settings,
// the list of books, the fonts, and Genesis 1. The panels stand in their places already. No position is
// remembered from one run to the next. A step that fails does not keep the next one from running.
#pragma once

#include "forms/folder_lists.h"
#include "forms/text_box.h"
#include "reader/reader.h"
#include "reader/settings.h"

namespace lectern::reader {

// What the start sets that belongs to features above.
struct StartUpControls {
  forms::DirListBox& Dirpics;
  forms::FileListBox& File1;
  forms::TextBox& Text2;
};

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

}  // namespace lectern::reader
