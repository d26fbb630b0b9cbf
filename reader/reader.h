// The reader's position, and how it brings the text to the screen.
//
// Three labels hold the position: lblbook, the stem of the book's file; lblbk, the name as shown; lblc, the
// chapter. Writing a new value runs the label's Change handler before the write returns:
//
//   lblc     loads the chapter of lblbook's file and updates the chapter bar, the bookmark and the picture;
//            does nothing while lblc or lblbook is empty
//   lblbk    sets the chapter bar, and so lblc, to 1, sets the bar's range, and fills the picture lists;
//            does nothing while lblc is empty
//   lblbook  does nothing
//
// So the order of the writes decides what is updated. Each order that a feature needs is one of the functions
// below. Only this class writes the three labels.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/bars_and_timer.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/lists.h"
#include "forms/picture_box.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"
#include "forms/window.h"
#include "reader/bookmark_record.h"
#include "reader/books.h"
#include "reader/chapter_store.h"
#include "reader/reference.h"

namespace lectern::reader {

class Reader {
  forms::Frame& frms_;
  forms::PictureBox& Picture1_;
  forms::Frame& Frame1_;

 public:
  Reader(forms::Window& window, forms::Frame& frms, forms::PictureBox& Picture1, forms::Frame& Frame1);

  // The position. During a jump the chapter is empty for a moment.
  const std::string& Stem() const { return lblbook.Caption; }
  const std::string& Book() const { return lblbk.Caption; }
  const std::string& Chapter() const { return lblc.Caption; }
  const std::string& VersionName() const { return LBLVR.Caption; }

  // What the pane shows. It differs from the position after a load that failed.
  const ShownChapter& Shown() const { return chapter_store_.Shown(); }

  // Opens chapter 1 of a book of the list, and updates the chapter bar, its range and the picture lists.
  // While the search panel is open, the bar stays.
  void OpenBook(const std::string& name);

  // Loads a chapter of the open book, even if it is already shown.
  void Reload(const std::string& chapter);

  // Loads a chapter of the open book unless it is already shown.
  void GoToChapter(const std::string& chapter);

  // Shows a chapter of any book. The range of the chapter bar and the picture lists stay those of the
  // previous book; the bar moves if its range allows it.
  void ShowPassage(const std::string& book, const std::string& chapter);

  // The same for a search result, whose book name ends with a blank. Because the name keeps the blank, no
  // chapter count is found and the bar keeps its range, but the picture lists are filled again. While the
  // search panel is open, the bar does not go back to chapter 1. Requires: the name is not empty.
  void ShowFoundPassage(const std::string& name_with_blank, const std::string& chapter);

  // Writes the chapter, which loads in the previous book, and then the book, which goes back to chapter 1.
  // While the search panel is open, the loaded text stays.
  void ShowChapterThenBook(const std::string& book, const std::string& chapter);

  // Makes a bookmark the current one, in LBLMRK.
  void TakeBookmark(const BookmarkRecord& record);

  // Goes to the current bookmark and updates everything. Chapter 1 of the book loads on the way.
  void RestoreBookmark();

  // Reloads chapter 1 of the open book and shows the controls that a panel hid. The search and the
  // concordance call this when they close.
  void ReturnToChapter1();

  // Goes to the next chapter, even past the last one.
  void StepToNextChapter();

  // Writes only the book's name: the bar, its range and the picture lists are those of the named book, but
  // the text is chapter 1 of the previous book.
  void NameBook(const std::string& name);

  // For the start of the program.
  void ClearPosition();
  void ShowGenesis();

  const Version& CurrentVersion() const { return versions_.Current(); }
  const Version& OtherVersion() const { return versions_.Other(); }

  // Loads the same chapter of the other version into a pane, which is empty if there is no such book. Raises
  // 76 if the version's folder is missing, and then changes nothing.
  void LoadOtherVersion(forms::RichTextBox& pane);

  // Reads a typed reference and checks whether the current version has the place. In a book with one chapter,
  // a single number is the verse.
  FoundReference Find(std::string_view typed) const;

  // Reports a failure with a message and a beep.
  void ReportError(const base::RunTimeError& error);

  // Paths of a file in the data folder, and of a book of the current version: "…\NEW\NExodus.txt".
  std::string DataFile(std::string_view name) const;
  std::string BookFile(std::string_view stem) const;

  forms::Window& form;

  forms::DirListBox Dir1{Frame1_, "Dir1"};  // the data folder, on which all paths are built
  forms::DirListBox Dir3{Frame1_, "Dir3"};  // the folder of the current version

 private:
  forms::Label lblbook{form, "lblbook", {.visible = false}};          // stem of the book's file
  forms::Label lblbk{form, "lblbk"};                                  // the book's name as shown
  forms::Label lblc{form, "lblc", {.caption = "00"}};                 // the chapter
  forms::Label LBLVR{form, "LBLVR", {.caption = kVersions[0].name}};  // name of the version
  forms::Label Label30{form, "Label30", {.caption = "Book of"}};      // before the book
  forms::Label Label21{form, "Label21", {.caption = "Chapter"}};      // before the chapter
  VersionOptions versions_{form};

 public:
  forms::ListBox lst{form, "lst", {.name = "Books"}};  // the books, both names and file stems
  // clang-format off
  forms::HScrollBar scr{form, "scr", {.value = 1, .min = 1, .max = 32767, .name = "Chapter",  // the chapter
                                      .key_back = "Ctrl+PgUp", .key_on = "Ctrl+PgDown"}};
  // clang-format on
  forms::RichTextBox rtxt{form, "rtxt", {.name = "Text of the chapter", .read_only = true}};  // the text
  forms::ListBox List1{form, "List1"};  // storage: nothing fills it

  // The current bookmark: name, book, chapter. The chapter follows the position.
  forms::ControlArray<forms::Label> LBLMRK{Picture1_, "LBLMRK", {"NAME", "BOOK", "CHAPTER"}};
  // The slide show of the book's pictures. A change of the chapter stops it.
  forms::Timer tmrpic{form, "tmrpic", {.enabled = false, .interval = 5000}};

  // Set by the window: updates the picture lists for the book in lblbk, and the picture for a loaded chapter.
  // Neither raises an error.
  std::function<void()> BookChanged = [] {};
  std::function<void()> ChapterShown = [] {};

 private:
  void lblc_Change();
  void lblbk_Change();
  void lst_Click();
  void List1_DblClick();

  void LoadChapterRange();
  void ChangeVersion(const Version& version);

  ChapterStore chapter_store_{*this};
};

}  // namespace lectern::reader
