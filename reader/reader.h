// Where the reader is, and the controls that show it. These few labels are all that the program knows of
// its position, and every feature that moves the reader writes them:
//
//   lblc = ""; lblbook = stem; lblbk = name; lblc = chapter
//
// The first write makes the last one a change also where the chapter is the same, and the last one loads
// the chapter (ChapterStore). While lblc is "" the other two are mere notes. Whoever wants the chapter
// bar and the picture lists to follow writes lblbk while lblc is not empty, with lblbook blank meanwhile,
// so that nothing of the old book is loaded (Navigation does).
#pragma once

#include <functional>

#include "forms/buttons.h"
#include "forms/folder_lists.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/rich_text_box.h"
#include "forms/scroll_bar.h"
#include "forms/timer.h"
#include "forms/window.h"
#include "reader/panels.h"

namespace lectern::reader {

class Reader {
 public:
  Reader(forms::Window& form, Panels& panels);

  // The file of a book in the version that is set: "…\KJV\Exodus.txt", "…\NEW\NExodus.txt".
  std::string BookFile(std::string_view stem) const;

  // Shows a chapter of the version that is set by the four writes above, and no more.
  void Show(const std::string& stem, const std::string& name, const std::string& chapter);

  forms::Window& form;

  forms::DirListBox Dir1;  // the data folder; all paths are built on it
  forms::DirListBox Dir3;  // the folder of the version that is set

  forms::Label lblbook;  // stem of the book's file
  forms::Label lblbk;    // the book's name as it is shown
  forms::Label lblc;     // the chapter; "" while a jump is under way
  forms::Label LBLVR;    // name of the version
  forms::Label Label30;
  forms::Label Label21;

  forms::OptionButton optk;  // first version: the only one of the two that is ever read
  forms::OptionButton optn;
  forms::Label Label34;
  forms::Label Label35;

  forms::ListBox lst;       // the books, at once names and file stems
  forms::HScrollBar scr;    // the chapter
  forms::RichTextBox rtxt;  // the text
  forms::ListBox List1;     // off the window; nothing fills it

  // What follows the chapter without being part of the position.
  forms::ControlArray<forms::Label> LBLMRK;  // the bookmark in hand: name, book, chapter
  forms::Timer tmrpic;                       // slide show of the book's pictures

  // What the rooms above hang in: the picture catalogue's routines.
  std::function<void()> ExtractBookPictures;
  std::function<void()> FillPictureLists;
  std::function<void()> SeekChapterPicture;
};

}  // namespace lectern::reader
