// Help: a panel with a list of topics and the text of one of them, each from a file of its own in the data
// folder; the About message; and the two web pages. The pane serves others too: the search writes into it
// how long things take, the pictures how to change the book.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "forms/bars_and_timer.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/picture_box.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"

namespace lectern::aids {

class Help {
  reader::Reader& reader_;
  forms::PictureBox& frmhelp_;
  reader::ToolButtons& tools_;
  static constexpr forms::Colour kLink = forms::Rgb(28, 84, 150);

 public:
  Help(reader::Reader& the_reader, forms::PictureBox& frmhelp, reader::ToolButtons& the_tools,
       forms::Menu& xh2, forms::Menu& aboutlt, forms::Menu& webb1, forms::Menu& webb2);

  // Hands an address to the default browser; whether it was accepted. One that does not begin with "http"
  // is replaced as a whole.
  bool OpenWebPage(const std::string& address);

  // A note of another feature: the panel opens with that text in the pane.
  void ShowNote(const std::string& text);

  // The stored note on changing the book, in the pane, whether or not the panel is open.
  void HelpChangingBook();

  forms::Label Label19_4{frmhelp_, "Label19", {.caption = "HELP"}};  // Label19(4), the heading
  // The topics.
  forms::ControlArray<forms::Label> lblhp{frmhelp_,
                                          "lblhp",
                                          {{.caption = "Book Mark", .fore_color = kLink},
                                           {.caption = "Search", .fore_color = kLink},
                                           {.caption = "Notes", .fore_color = kLink},
                                           {.caption = "Pictures", .fore_color = kLink},
                                           {.caption = "Concordance", .fore_color = kLink},
                                           {.caption = "Dictionary", .fore_color = kLink},
                                           {.caption = "Trivia", .fore_color = kLink},
                                           {.caption = "Paint", .fore_color = kLink}}};
  // Text of the topic.
  forms::RichTextBox txthelp{frmhelp_, "txthelp", {.name = "Help text", .read_only = true}};
  // Closes the panel.
  forms::CommandButton Command4{frmhelp_, "Command4", {.caption = "Close", .is_cancel = true}};
  // Closes the panel and unlocks the tool buttons.
  forms::CommandButton Command44{
      frmhelp_, "Command44", {.caption = "Close", .name = "Close, and unlock the tool buttons"}};
  forms::Timer Timer1{reader_.form, "Timer1"};  // never ticks

 private:
  void xh2_Click();
  void lblhp_Click(int index);
  void Command4_Click();
  void Command44_Click();
  void aboutlt_Click();
  void webb1_Click();
  void webb2_Click();
  void ShowAbout();
  void LeaveAbout();
  void ShowText(const std::string& text);
};

// The short help notes that the program carries in itself, and the texts that name its makers. A stored note
// replaces the text of the help pane; most have no door but their name.
struct StoredNote {
  std::string_view routine;  // the name it is called by
  std::string_view text;
};

extern const std::array<StoredNote, 13> kStoredNotes;

// The text of the note of that name, which has to be one.
std::string_view StoredNoteText(std::string_view routine);

extern const std::string_view kAboutText;

}  // namespace lectern::aids
