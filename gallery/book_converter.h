// A maintenance tool that converts the text of a book, pasted into a pane, to a book file. The source has a
// header line, a blank line, the book's name, and verses that begin with their number in square brackets:
//
//   Codex, King James Version
//
//   Ruth
//   [1]Now it came to pass in the days when the judges ruled …
//
// Verse 1 begins a chapter. The file goes to the chosen folder; converting a book twice doubles its file.
// Failures are not trapped.
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

  forms::DirListBox Dir2{Frame5_, "Dir2", {.name = "Folder for the book file"}};
  forms::FileListBox File2{Frame5_, "File2", {.name = "Files of that folder"}};  // the files there
  forms::RichTextBox RTB1{Frame5_, "RTB1", {.name = "Source of the book"}};      // the source
  forms::RichTextBox RTB2{Frame5_, "RTB2", {.name = "The book file"}};           // the result
  forms::Label NME{Frame5_, "NME", {.caption = "NME"}};                          // the book's name
  forms::CommandButton Command33{Frame5_, "Command33", {.caption = "CONVERT FILE"}};

 private:
  void Command33_Click();
  void WriteSource(const std::string& scratch);
  std::string ReadBookName();
  void ConvertVerses();

  forms::Window& form_;
};

}  // namespace lectern::gallery
