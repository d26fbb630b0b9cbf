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

// The background of the chooser.
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
  // ODDITY(notes-print-nothing): one empty line is printed, and on the window itself, where nobody can see
  // it.
  f6.Click = [this] {
    constexpr double kLineHeight = 195;  // twips, in the window's font
    form.CurrentX = 0;
    form.CurrentY = form.CurrentY + kLineHeight;
  };
  Command12.Click = [this] { Command12_Click(); };
  f8.Click = [this] { Command12_Click(); };

  // ODDITY(drive-fails): the drive is assigned to something that does not exist; only the folder list counts.
  Drive1.Change = [] { throw base::RunTimeError(base::ErrorNumber::kObjectRequired); };
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

// ODDITY(notes-folder-now): a note is written to the folder that the chooser shows now, not to the one from
// which it was loaded.
std::string Notes::PathOf(const std::string& name) const { return Dir1.Path + "\\" + name + ".not"; }

// ODDITY(note-grows): a line end is always written after the text, which still has the one from the last
// time, so a note grows by an empty line with each load and save.
void Notes::AppendText(const std::string& name) {
  files::FileSlots& slots = form.Slots();
  slots.OpenForAppending(kNote, PathOf(name));
  slots.PrintLine(kNote, txthelp.Text());
  slots.Close(kNote);
}

void Notes::File1_Click() {
  if (const int selected = File1.SelectedIndex(); selected >= 0) {
    // ODDITY(note-switch-drops): changes to the previous note are dropped without a question. The empty name
    // makes a click on the open note load it again.
    constexpr std::size_t kEnding = 4;  // characters of ".not"
    const std::string& entry = File1.List(selected);
    lblname.Caption = "";
    lblname.Caption = std::string(text::Left(entry, text::Length(entry) - kEnding));
  }
  HideChooser();
}

// Loading marks the text as altered, so the mark is cleared afterwards.
void Notes::lblname_Change() {
  ShowTitle();
  if (lblname.Caption == "") return;
  txthelp.LoadFile(PathOf(lblname.Caption));
  lblc.Caption = "";
}

void Notes::Command2_Click() {
  const std::string name = AskForName(form.Platform(), "Enter a name for file", "InputBox Demo");
  if (name.empty()) return;
  // ODDITY(new-note-copies): a new note begins as a copy of the editor's text. If a note of that name exists,
  // the text is added to its end; if that note is open, the editor still shows the old text.
  AppendText(name);
  lblname.Caption = name;
  File1.Refresh();
  HideChooser();
}

void Notes::SaveNoteFile() {
  form.Files().SetAside(PathOf(lblname.Caption));
  AppendText(lblname.Caption);
  form.Files().Settle();  // ahead of the mark, which is kept if the text does not arrive on the disk
  lblc.Caption = "";
}

void Notes::Command12_Click() {
  Form_Unload();
  form.Visible = false;
}

// ODDITY(unsaved-stays-unsaved): a No keeps the text and its mark, so the question comes again the next time.
void Notes::Form_Unload() {
  if (lblc.Caption != kAltered) return;
  const std::string question =
      "File has been altered. Do you want to save changes to the file: " + lblname.Caption + "?";
  if (form.Platform().Question(question, "Save File")) SaveNoteFile();
}

void Notes::f4_Click() {
  if (!form.Platform().Question("Do you want to delete file: " + lblname.Caption + "?", "Delete File"))
    return;
  // ODDITY(deleted-note-stays): the name and the text stay in the editor. Saving then fails, as there is no
  // file to replace.
  form.Files().DeleteKeepingBackup(PathOf(lblname.Caption));
  ShowChooser();
}

// The title bar names the note and has a "*" in front if changes are unsaved.
void Notes::ShowTitle() {
  const std::string& name = lblname.Caption;
  std::string title = lblc.Caption == kAltered ? "*" : "";
  if (!name.empty() && name != kNoNote) title += name + " - ";
  form.Title = title + form.Caption();
}

NotesOpening::NotesOpening(forms::PictureBox& picp, reader::ToolButtons& tools, forms::Menu& cc0,
                           std::function<Notes&()> notes) {
  cc0.Click = [notes] { notes().Open(); };
  tools.Command14.Click = [notes = std::move(notes), &picp] {
    picp.Visible = false;
    notes().Open();
  };
}

}  // namespace lectern::aids
