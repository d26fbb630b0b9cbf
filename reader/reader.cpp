#include "reader/reader.h"

#include <cassert>

#include "base/errors.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"
#include "reader/canon.h"

namespace lectern::reader {

Reader::Reader(forms::Window& window, forms::Frame& frms, forms::PictureBox& Picture1, forms::Frame& Frame1)
    : frms_(frms), Picture1_(Picture1), Frame1_(Frame1), form(window) {
  lblc.Change = [this] { lblc_Change(); };
  lblbk.Change = [this] { lblbk_Change(); };
  lst.Click = [this] { lst_Click(); };
  scr.Change = [this] { GoToChapter(std::to_string(scr.Value)); };
  for (std::size_t i = 0; i < kVersions.size(); ++i) {
    versions_.options[i].Click = [this, i] { ChangeVersion(kVersions[i]); };
  }
  List1.DblClick = [this] { List1_DblClick(); };
  List1.KeyDown = [this](int code) {
    if (code == forms::kEnterKey) List1_DblClick();
  };
}

std::string Reader::DataFile(std::string_view name) const { return (Dir1.Path + "\\").append(name); }

std::string Reader::BookFile(std::string_view stem) const {
  return (Dir3.Path + "\\").append(CurrentVersion().prefix).append(stem).append(".txt");
}

FoundReference Reader::Find(std::string_view typed) const {
  using Missing = FoundReference::Missing;
  const auto read = ReadReference(typed);
  if (!read) return {{}, Missing::kBook};
  Reference at = read->reference;
  std::vector<int> verses;  // per chapter
  const base::Ignoring ignore;
  ignore(
      [&] { verses = VersesOfChapters(form.Files(), BookFile(kCanon[static_cast<std::size_t>(at.book)])); });
  if (verses.empty()) return {at, Missing::kBook};
  if (verses.size() == 1 && at.verse == 0) at = {at.book, at.chapter == 0 ? 0 : 1, at.chapter};
  const auto chapter = static_cast<std::size_t>(at.chapter);
  // In a range of verses, the first one counts.
  const bool is_readable =
      read->rest.find_first_not_of(" .:,v") == std::string_view::npos || read->rest[0] == '-';
  if (chapter > verses.size() || (chapter == 0 && !is_readable)) {
    return {at, Missing::kChapter, static_cast<int>(verses.size())};
  }
  const int last = chapter > 0 ? verses[chapter - 1] : 0;
  if (!is_readable || at.verse > last) return {at, Missing::kVerse, last};
  return {at, Missing::kNothing};
}

// The books of the other version bear the name that is shown, without a prefix. After a search that name ends
// with a blank, and a data folder may have the file with the prefix alone.
void Reader::LoadOtherVersion(forms::RichTextBox& pane) {
  const std::string folder = Dir3.Path;
  const std::string other = DataFile(OtherVersion().folder);
  Dir3.Path = other;
  bool loaded = false;
  for (const std::string& name : {Book(), Stem(), std::string(OtherVersion().prefix) + Stem()}) {
    loaded = loaded ||
             chapter_store_.LoadInto(pane, other + "\\" + name + ".txt") != ChapterStore::Loaded::kNothing;
  }
  if (!loaded) pane.Text = "";
  Dir3.Path = folder;
}

// The book stays; the chapter goes back to 1.
void Reader::ChangeVersion(const Version& version) {
  LBLVR.Caption = std::string(version.name);
  Dir3.Path = DataFile(version.folder);
  Reload("1");
}

void Reader::ReportError(const base::RunTimeError& error) {
  List1.Visible = true;
  base::Platform& platform = form.Platform();
  if (error.Is(base::ErrorNumber::kFileNotFound)) {
    // ODDITY(concordance-missing): any missing file is reported as the concordance.
    platform.Message(std::string(kVersions[0].concordance) + " missing from " + Dir1.Path);
  } else {
    platform.Message(
        "An error (" + std::to_string(error.number()) +
        " ) has occured during proccessing your request. Click HELP, for information on possible "
        "sources causing the error. ");
  }
  platform.Beep();
}

void Reader::lblc_Change() {
  tmrpic.Enabled = false;  // even if nothing is loaded
  if (Chapter().empty() || Stem().empty()) return;
  chapter_store_.Load();
  LBLMRK(2).Caption = lblc.Caption;
  const base::Ignoring ignore;
  ignore([&] { scr.Value = text::IntegerValue(Chapter()); });
  ChapterShown();
}

void Reader::lblbk_Change() {
  if (Book().empty() || Chapter().empty() || Chapter() == "00") return;
  lblbk.Visible = true;
  const base::Ignoring ignore;
  ignore([&] {
    if (!frms_.Visible) scr.Value = 1;
  });
  LoadChapterRange();
  BookChanged();
}

void Reader::LoadChapterRange() {
  if (const auto count = ChapterCount(form, DataFile("bookschap.txt"), Book())) scr.Max = *count;
  const base::Ignoring ignore;
  ignore([&] { scr.Value = text::IntegerValue(Chapter()); });
}

void Reader::lst_Click() {
  form.MousePointer = forms::kPointerHourglass;
  if (const int selected = lst.SelectedIndex(); selected >= 0) {
    OpenBook(lst.List(selected));
  } else {
    Reload("1");
  }
  form.MousePointer = forms::kPointerArrow;
}

// Goes to the chapter of the selected line, such as "Chapter 12".
void Reader::List1_DblClick() {
  const std::string& line = List1.List(List1.SelectedIndex());
  if (text::Lower(text::Left(line, 7)) != "chapter") return;
  const std::string chapter(text::Mid(line, 9));
  if (text::IsNumeric(chapter)) GoToChapter(chapter);
}

void Reader::OpenBook(const std::string& name) {
  lblbook.Caption = "";  // keeps the name from loading chapter 1 of the old book
  lblbk.Caption = name;
  lblbook.Caption = name;
  Reload("1");
}

void Reader::Reload(const std::string& chapter) {
  lblc.Caption = "";
  lblc.Caption = chapter;
}

void Reader::GoToChapter(const std::string& chapter) { lblc.Caption = chapter; }

void Reader::ShowPassage(const std::string& book, const std::string& chapter) {
  lblc.Caption = "";
  lblbook.Caption = book;
  lblbk.Caption = book;
  lblc.Caption = chapter;
}

// ODDITY(blank-behind-the-book): the name keeps its trailing blank, so the chapter counts do not list the
// book and the chapter bar keeps the range of the previous one.
void Reader::ShowFoundPassage(const std::string& name_with_blank, const std::string& chapter) {
  assert(!name_with_blank.empty());
  const std::size_t length = text::Length(name_with_blank);
  ShowPassage(std::string(text::Left(name_with_blank, length - 1)), chapter);
  lblbk.Caption = "";
  lblbk.Caption = name_with_blank;
}

void Reader::ShowChapterThenBook(const std::string& book, const std::string& chapter) {
  Reload(chapter);
  lblbook.Caption = book;
  lblbk.Caption = book;
  // The name alone does not go back if the bar is at 1 or the book was already open.
  if (!frms_.Visible) GoToChapter("1");
}

void Reader::TakeBookmark(const BookmarkRecord& record) {
  LBLMRK(0).Caption = record.name;
  LBLMRK(1).Caption = record.book;
  LBLMRK(2).Caption = record.chapter;
}

void Reader::RestoreBookmark() {
  const std::string book = LBLMRK(1).Caption;
  const std::string chapter = LBLMRK(2).Caption;  // loading chapter 1 changes the label
  // While lblbook is empty, the first write of the chapter loads nothing, but lets the name take effect.
  lblbook.Caption = "";
  lblc.Caption = "";
  lblbk.Caption = "";
  lblc.Caption = chapter;
  lblbook.Caption = book;
  lblbk.Caption = book;
  Reload(chapter);
}

void Reader::ReturnToChapter1() {
  lblc.Caption = "";
  lblbk.Visible = true;
  List1.Visible = true;
  lblc.Caption = "1";
  const std::string stem = Stem();
  lblbook.Caption = "";
  lblbook.Caption = stem;
}

void Reader::StepToNextChapter() { GoToChapter(text::NumberText(text::LeadingDigits(Chapter()) + 1)); }

void Reader::NameBook(const std::string& name) { lblbk.Caption = name; }

void Reader::ClearPosition() {
  lblc.Caption = "";
  lblbk.Caption = "";
  lblbook.Caption = "";
}

void Reader::ShowGenesis() {
  lblbk.Caption = "Genesis";
  lblbook.Caption = "Genesis";
  const base::Ignoring ignore;
  ignore([&] { Reload("1"); });
  LoadChapterRange();
  BookChanged();
}

}  // namespace lectern::reader
