// The notes window, which stays alive while it is hidden: an editor for notes of plain text, each in its own
// file with the ending `.not`, and the chooser that lies over it.
//
// The text is saved in one piece, with a line end after it. A failure leaves the text in the editor and the
// note marked as altered; the last version of a saved or deleted note is kept.
#pragma once

#include <functional>

#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/lists.h"
#include "forms/picture_box.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"
#include "forms/window.h"
#include "reader/tool_buttons.h"

namespace lectern::aids {

class Notes {
  static constexpr std::string_view kNoNote = "NAME";

 public:
  explicit Notes(forms::Window& window);

  void Form_Load();
  void Form_Unload();

  void Open();  // shows the window, with the chooser if no note is open yet

  forms::Window& form;

  forms::Menu f1{form, "f1", {.caption = "File"}};                       // File
  forms::Menu f2{f1, "f2", {.caption = "&Open", .shortcut = "Ctrl+O"}};  // opens the chooser
  forms::Menu f3{f1, "f3", {.caption = "&Save", .shortcut = "Ctrl+S"}};  // saves the note
  forms::Menu f4{f1, "f4", {.caption = "Delete"}};                       // deletes the note
  forms::Menu f5{f1, "f5", {.caption = "-"}};                            // line
  forms::Menu f6{f1, "f6", {.caption = "Print"}};                        // prints the window
  forms::Menu f7{f1, "f7", {.caption = "-"}};                            // line
  forms::Menu f8{f1, "f8", {.caption = "E&xit"}};                        // closes the window

  // The note's name; "NAME" until one is opened.
  forms::Label lblname{form, "lblname", {.caption = kNoNote}};
  // "c" if the text was changed after it was loaded or saved.
  forms::Label lblc{form, "lblc", {.caption = "Label1", .visible = false}};
  forms::RichTextBox txthelp{form, "txthelp", {.text = "RichTextBox1\r\n", .name = "Text of the note"}};
  forms::CommandButton Command1{form, "Command1", {.caption = "Open"}};    // opens the chooser
  forms::CommandButton Command13{form, "Command13", {.caption = "Save"}};  // saves the note
  forms::CommandButton Command12{form, "Command12", {.caption = "Close", .is_cancel = true}};

  // Nothing uses this frame and the two controls in it.
  forms::Frame FRMNOTE{form, "FRMNOTE", {.visible = false}};
  forms::Label Label17{FRMNOTE, "Label17", {.caption = "Notes"}};  // heading of FRMNOTE
  forms::TextBox Text42{FRMNOTE, "Text42", {.name = "Notes"}};     // in FRMNOTE

  forms::PictureBox picopen{form, "picopen", {.visible = false, .name = "Open a note"}};  // the chooser
  forms::DriveListBox Drive1{picopen, "Drive1", {.name = "Drive"}};          // drive of the notes
  forms::DirListBox Dir1{picopen, "Dir1", {.name = "Folder of the notes"}};  // folder of the notes
  forms::FileListBox File1{picopen, "File1", {.name = "Notes in the folder", .pattern = "*.not"}};
  forms::Label Label2{
      // what to do
      picopen,
      "Label2",
      {.caption = "Click file above to open or Create New File", .fore_color = forms::kBlack}};
  forms::CommandButton Command2{picopen, "Command2", {.caption = "Create New File"}};  // creates a note
  forms::CommandButton Command3{picopen, "Command3", {.caption = "Close", .is_cancel = true}};

 private:
  void File1_Click();
  void lblname_Change();
  void Command2_Click();
  void Command12_Click();
  void f4_Click();

  void SaveNoteFile();

  std::string PathOf(const std::string& name) const;
  void AppendText(const std::string& name);
  void ShowChooser();
  void HideChooser();
  void ShowTitle();
};

// The tool button and the menu entry of the main window that open the notes.
class NotesOpening {
 public:
  // `notes` creates the window of the notes on first use.
  NotesOpening(forms::PictureBox& picp, reader::ToolButtons& tools, forms::Menu& cc0,
               std::function<Notes&()> notes);
};

}  // namespace lectern::aids
