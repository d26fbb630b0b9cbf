// Where the reader is, and the way from there to the text on the screen.
//
// Three labels hold the position: lblbook, the stem of the book's file, lblbk, the name as it is shown, and
// lblc, the chapter. Writing another value runs the label's Change handler before the write returns:
//
//   lblc     loads the chapter of lblbook's file, and moves what follows the chapter; with lblc or lblbook
//            empty it loads nothing
//   lblbk    while lblc is not empty: sends the chapter bar to 1, and with it lblc, sets the bar's range, and
//            fills the picture lists; while lblc is empty it does nothing
//   lblbook  does nothing
//
// So the order of the writes decides what follows and what stays as it was. Each order that the features want
// is one of the functions below. Nobody else writes the three labels.
#pragma once

#include <deque>
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

  // The position. A jump that is under way leaves the chapter empty for a moment.
  const std::string& Stem() const { return lblbook.Caption; }
  const std::string& Book() const { return lblbk.Caption; }
  const std::string& Chapter() const { return lblc.Caption; }

  // What the pane shows, which differs from the position where a load failed.
  const ShownChapter& Shown() const { return chapter_store_.Shown(); }

  // Opens chapter 1 of a book of the list. Everything follows: the chapter bar and its range, the picture
  // lists, the text. The open search panel keeps the bar where it is.
  void OpenBook(const std::string& name);

  // Loads a chapter of the open book, also the one that is shown.
  void Reload(const std::string& chapter);

  // Moves to a chapter of the open book; where it is shown already, nothing happens.
  void GoToChapter(const std::string& chapter);

  // Shows a chapter of any book. The range of the chapter bar and the picture lists stay those of the book
  // before; the bar moves where its range allows it.
  void ShowPassage(const std::string& book, const std::string& chapter);

  // The same for an entry of a search, whose name ends in the blank that stands in front of its chapter. The
  // name keeps the blank, so that no chapter count is found and the bar keeps its range, but the picture
  // lists are filled anew. The open search panel keeps the bar from going back to chapter 1.
  // Requires: the name is not empty.
  void ShowFoundPassage(const std::string& name_with_blank, const std::string& chapter);

  // Goes to a book with its chapter written first. The chapter loads in the book before, and the name that
  // follows goes back to chapter 1; only with the search panel open does that text stay.
  void ShowChapterThenBook(const std::string& book, const std::string& chapter);

  // Shows a bookmark as the one in hand, in LBLMRK.
  void TakeBookmark(const BookmarkRecord& record);

  // Goes to the place of the bookmark in hand. Everything follows; chapter 1 of the book loads on the way.
  void RestoreBookmark();

  // Goes back to chapter 1 of the open book and reloads it, as the search and the concordance do when they
  // close; what they may have hidden is shown again.
  void ReturnToChapter1();

  // Moves one chapter on. Nothing stops it behind the last one.
  void StepToNextChapter();

  // Writes the book's name alone: the bar, its range and the picture lists follow the name, and the text is
  // chapter 1 of the book before.
  void NameBook(const std::string& name);

  // For the start: no position, and then Genesis 1.
  void ClearPosition();
  void ShowGenesis();

  // The version that is set.
  const Version& CurrentVersion() const { return versions_.Current(); }

  // Reads a reference that a person typed, and looks whether the text of the current version has the place.
  // Of a book with a single chapter the only number is the verse.
  FoundReference Find(std::string_view typed) const;

  // The general report of a failure, at the end of error paths all over the window: a message and a beep.
  void ReportError(const base::RunTimeError& error);

  // A file of the data folder, and one of the version that is set: "…\KJV\Exodus.txt", "…\NEW\NExodus.txt".
  std::string DataFile(std::string_view name) const;
  std::string BookFile(std::string_view stem) const;

  forms::Window& form;

  forms::DirListBox Dir1{Frame1_, "Dir1"};  // the data folder; all paths are built on it
  forms::DirListBox Dir3{Frame1_, "Dir3"};  // the folder of the version that is set

 private:
  forms::Label lblbook{form, "lblbook", {.visible = false}};          // stem of the book's file
  forms::Label lblbk{form, "lblbk"};                                  // the book's name as it is shown
  forms::Label lblc{form, "lblc", {.caption = "00"}};                 // the chapter
  forms::Label LBLVR{form, "LBLVR", {.caption = kVersions[0].name}};  // name of the version
  forms::Label Label30{form, "Label30", {.caption = "Book of"}};      // stands before the book
  forms::Label Label21{form, "Label21", {.caption = "Chapter"}};      // stands before the chapter
  VersionOptions versions_{form};

 public:
  forms::ListBox lst{form, "lst", {.name = "Books"}};  // the books, at once names and file stems
  // The chapter.
  forms::HScrollBar scr{form,
                        "scr",
                        {.value = 1,
                         .min = 1,
                         .max = 32767,
                         .name = "Chapter",
                         .key_back = "Ctrl+PgUp",
                         .key_on = "Ctrl+PgDown"}};
  forms::RichTextBox rtxt{form, "rtxt", {.name = "Text of the chapter", .read_only = true}};  // the text
  forms::ListBox List1{form, "List1"};  // storage: nothing fills it

  // The bookmark in hand: name, book, chapter. The chapter follows the reader.
  forms::ControlArray<forms::Label> LBLMRK{
      Picture1_, "LBLMRK", {{.caption = "NAME"}, {.caption = "BOOK"}, {.caption = "CHAPTER"}}};
  // Slide show of the book's pictures, which a change of the chapter stops.
  forms::Timer tmrpic{form, "tmrpic", {.enabled = false, .interval = 5000}};

  // Joined by the window: the picture lists for the book that lblbk names, and the picture of a chapter that
  // was loaded. Neither raises an error.
  std::function<void()> BookChanged = [] {};
  std::function<void()> ChapterShown = [] {};

 private:
  void lblc_Change();
  void lblbk_Change();
  void lst_Click();
  void scr_Change();
  void List1_DblClick();

  void LoadChapterRange();
  void ChangeVersion(const Version& version);

  ChapterStore chapter_store_{*this};
};

}  // namespace lectern::reader
