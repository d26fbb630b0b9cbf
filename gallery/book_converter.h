// Turns a book's text as it comes from elsewhere, pasted into a pane, into a book file: a tool of the
// keeper's. The source has a header line, a blank line, the book's name, and verses marked by their number in
// square brackets:
//
//   Codex, King James Version
//
//   Ruth
//   [1]Now it came to pass in the days when the judges ruled …
//
// A verse of number 1 begins a chapter. The file goes into the folder that is chosen beside the panes;
// converting a book twice doubles its file. Nothing traps a failure.
#pragma once

#include <string>

#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/lists.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"
#include "forms/window.h"

namespace lectern::gallery {

class BookConverter {
  forms::Frame& Frame5_;

 public:
  explicit BookConverter(forms::Frame& Frame5);

  // Where the book file goes.
  forms::DirListBox Dir2{Frame5_, "Dir2", {.name = "Folder for the book file"}};
  forms::FileListBox File2{Frame5_, "File2", {.name = "Files of that folder"}};  // the files there
  forms::RichTextBox RTB1{Frame5_, "RTB1", {.name = "Source of the book"}};      // the source
  forms::RichTextBox RTB2{Frame5_, "RTB2", {.name = "The book file"}};           // the result
  forms::Label NME{Frame5_, "NME", {.caption = "NME"}};                          // the book's name
  // Converts the source.
  forms::CommandButton Command33{Frame5_, "Command33", {.caption = "CONVERT FILE"}};

 private:
  void Command33_Click();

  void LaySourceDown(const std::string& scratch);
  std::string ReadBookName();
  void ConvertVerses();
  std::string WholeVerse(std::string line);

  forms::Window& form_;
};

}  // namespace lectern::gallery
