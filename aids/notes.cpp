#include "aids/notes.h"

#include <algorithm>
#include <utility>

#include "aids/asked_name.h"
#include "base/errors.h"
#include "base/text/characters.h"

namespace lectern::aids {

namespace {

constexpr int kNote = 1;  // slot

constexpr std::string_view kAltered = "c";

// The chooser's ground: a sheet of ruled paper.
forms::Picture RuledPaper() {
  constexpr int kWidth = 423;  // pixels
  constexpr int kHeight = 554;
  constexpr int kBetweenRules = 24;
  constexpr forms::Pixel kPaper = forms::kOpaque | 0xEFF8FB;
  constexpr forms::Pixel kRule = forms::kOpaque | 0xF0E8E2;
  forms::Bitmap paper(kWidth, kHeight, kPaper);
  for (int y = kBetweenRules - 1; y < kHeight; y += kBetweenRules) {
    std::fill_n(paper.Row(y), kWidth, kRule);
  }
  return forms::Picture(std::move(paper));
}

}  // namespace

Notes::Notes(forms::Window& window) : form(window) {
  txthelp.FontName = "MS Sans Serif";
  txthelp.FontSize = 8.5;
  picopen.Picture = RuledPaper();

  lblname.Change = [this] { lblname_Change(); };
  lblc.Change = [this] { ShowTitle(); };
  txthelp.Change = [this] { lblc.Caption = std::string(kAltered); };
  Command1.Click = [this] { ShowChooser(); };
  f2.Click = [this] { ShowChooser(); };
  Command13.Click = [this] { SaveNoteFile(); };
  f3.Click = [this] { SaveNoteFile(); };
  f4.Click = [this] { f4_Click(); };
  f6.Click = [this] { f6_Click(); };
  Command12.Click = [this] { Command12_Click(); };
  f8.Click = [this] { Command12_Click(); };

  Drive1.Change = [this] { Drive1_Change(); };
  Dir1.Change = [this] { File1.Path = Dir1.Path; };
  File1.Click = [this] { File1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { HideChooser(); };
}

void Notes::Form_Load() {
  picopen.Left = 0;
  picopen.Top = 0;
  form.Width = 6465;
  form.Left = 10;
  form.Top = (form.Platform().Screen().height - form.Height) / 2;
  form.Left = 1;
}

void Notes::Open() {
  if (lblname.Caption == kNoNote) {
    form.Platform().Message("Open file to add to, or create new file");
    ShowChooser();
  }
  form.Visible = true;
  form.BringToFront();
}

void Notes::ShowChooser() {
  picopen.Visible = true;
  File1.Refresh();
  File1.SetFocus();
}

void Notes::HideChooser() {
  picopen.Visible = false;
  txthelp.SetFocus();
}

// ODDITY(notes-folder-now): a note is written to the folder that the chooser shows now, not to the one that
// it came from.
std::string Notes::PathOf(const std::string& name) const { return Dir1.Path + "\\" + name + ".not"; }

// ODDITY(note-grows): the line end behind the text is written each time, also where the text has brought
// the one from the last time; so a note grows by an empty line with each load and save.
void Notes::AppendText(const std::string& name) {
  files::FileSlots& slots = form.Slots();
  slots.OpenForAppending(kNote, PathOf(name));
  slots.PrintLine(kNote, txthelp.Text());
  slots.Close(kNote);
}

void Notes::File1_Click() {
  if (const int selected = File1.SelectedIndex(); selected >= 0) {
    // ODDITY(note-switch-drops): what was changed in the note before is dropped without a question; it is
    // meant. The blank makes a click on the note that is open load it anew.
    constexpr std::size_t kEnding = 4;  // characters of ".not"
    const std::string& entry = File1.List(selected);
    lblname.Caption = "";
    lblname.Caption = std::string(text::Left(entry, text::Length(entry) - kEnding));
  }
  HideChooser();
}

// The load marks the text as altered, and the mark is taken away behind it.
void Notes::lblname_Change() {
  ShowTitle();
  if (lblname.Caption == "") return;
  txthelp.LoadFile(PathOf(lblname.Caption));
  lblc.Caption = "";
}

void Notes::Command2_Click() {
  const std::string name = AskForName(form.Platform(), "Enter a name for file", "InputBox Demo");
  if (name.empty()) return;
  // ODDITY(new-note-copies): a new note begins as a copy of what the editor holds; where there is a note of
  // that name, the text goes to its end, and where that is the note that is open, the editor goes on
  // showing the old text.
  AppendText(name);
  lblname.Caption = name;
  File1.Refresh();
  HideChooser();
}

void Notes::SaveNoteFile() {
  form.Files().DeleteKeepingBackup(PathOf(lblname.Caption));
  AppendText(lblname.Caption);
  lblc.Caption = "";
}

// ODDITY(unsaved-stays-unsaved): a No leaves the text and its mark as they are, and the question comes again
// at the next leaving.
void Notes::ConfirmSaveNote() {
  const std::string question =
      "File has been altered. Do you want to save changes to the file: " + lblname.Caption + "?";
  if (form.Platform().Question(question, "Save File")) SaveNoteFile();
}

void Notes::Command12_Click() {
  Form_Unload();
  form.Visible = false;
}

void Notes::Form_Unload() {
  if (lblc.Caption == kAltered) ConfirmSaveNote();
}

void Notes::f4_Click() {
  if (!form.Platform().Question("Do you want to delete file: " + lblname.Caption + "?", "Delete File"))
    return;
  // ODDITY(deleted-note-stays): the note's name and text stay in the editor; saving it then fails, as there
  // is no file to replace.
  form.Files().DeleteKeepingBackup(PathOf(lblname.Caption));
  ShowChooser();
}

// ODDITY(notes-print-nothing): what is printed is one empty line, and on the window's own face, where it is
// not to be seen.
void Notes::f6_Click() {
  constexpr double kLineHeight = 195;  // twips, in the window's font
  form.CurrentX = 0;
  form.CurrentY = form.CurrentY + kLineHeight;
}

// ODDITY(drive-fails): the choice of a drive is handed to something that does not exist; the folder is
// chosen in its own list.
void Notes::Drive1_Change() { throw base::RunTimeError(base::ErrorNumber::kObjectRequired); }

// What a person sees in the title bar: which note this is, and whether something in it is not saved yet.
void Notes::ShowTitle() {
  const std::string& name = lblname.Caption;
  std::string title = lblc.Caption == kAltered ? "*" : "";
  if (!name.empty() && name != kNoNote) title += name + " - ";
  form.Title = title + form.Caption();
}

NotesDoors::NotesDoors(forms::PictureBox& picp, reader::ToolButtons& tools, forms::Menu& cc0,
                       std::function<Notes&()> notes) {
  cc0.Click = [notes] { notes().Open(); };
  tools.Command14.Click = [notes = std::move(notes), &picp] {
    picp.Visible = false;
    notes().Open();
  };
}

}  // namespace lectern::aids
