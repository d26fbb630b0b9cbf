// The notes: an editor for notes of plain text, each a file of its own whose name ends in `.not`, and the
// chooser that lies over it. All of it stands on a window of its own, which stays alive while it is hidden.
//
// What the editor holds is saved in one piece, with a line end behind it. A failure here leaves the text in
// the editor and the note marked as altered; the last version of a saved or deleted note is kept.
#pragma once

#include "forms/buttons.h"
#include "forms/folder_lists.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/menu.h"
#include "forms/picture_box.h"
#include "forms/rich_text_box.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace lectern::aids {

class Notes {
 public:
  explicit Notes(forms::Window& window);

  void Form_Load();
  void Form_Unload();

  // From the main window: shows the notes, and the chooser where no note was opened yet.
  void Open();

  forms::Window& form;

  forms::Menu f1;  // File
  forms::Menu f2;
  forms::Menu f3;
  forms::Menu f4;
  forms::Menu f5;
  forms::Menu f6;
  forms::Menu f7;
  forms::Menu f8;

  forms::Label lblname;  // the note's name; "NAME" until one is opened
  forms::Label lblc;     // "c" where the text was changed since it was loaded or saved
  forms::RichTextBox txthelp;
  forms::CommandButton Command1;
  forms::CommandButton Command13;
  forms::CommandButton Command12;

  forms::Frame FRMNOTE;  // nothing reads or writes these three
  forms::Label Label17;
  forms::TextBox Text42;

  forms::PictureBox picopen;  // the chooser
  forms::DriveListBox Drive1;
  forms::DirListBox Dir1;
  forms::FileListBox File1;
  forms::Label Label2;
  forms::CommandButton Command2;
  forms::CommandButton Command3;

 private:
  void File1_Click();
  void lblname_Change();
  void Command2_Click();
  void Command12_Click();
  void f4_Click();
  void f6_Click();
  void Drive1_Change();

  void SaveNoteFile();
  void ConfirmSaveNote();

  std::string PathOf(const std::string& name) const;
  void AppendText(const std::string& name);
  void ShowChooser();
  void HideChooser();
  void ShowTitle();
};

}  // namespace lectern::aids
