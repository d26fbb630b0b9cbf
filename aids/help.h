// Help: a panel with a list of topics and the text of one of them, read from the topic's file in the data
// folder; the About message; and the two web pages. Other features show their notes in the same pane.
#pragma once

#include <string>

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

  // Opens the panel and shows a note of another feature.
  void ShowNote(const std::string& text);

  // Puts the stored note on changing the book into the pane and leaves the panel open or closed.
  void HelpChangingBook() { reader_.form.routines["HelpChangingBook"](""); }

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
  forms::RichTextBox txthelp{frmhelp_, "txthelp", {.name = "Help text", .read_only = true}};
  forms::CommandButton Command4{frmhelp_, "Command4", {.caption = "Close", .is_cancel = true}};
  forms::CommandButton Command44{
      frmhelp_, "Command44", {.caption = "Close", .name = "Close, and unlock the tool buttons"}};
  forms::Timer Timer1{reader_.form, "Timer1"};  // never ticks

 private:
  void lblhp_Click(int index);

  // Opens an address in the default browser. One that does not begin with "http" is replaced as a whole.
  void OpenWebPage(const std::string& address);
  void ShowText(const std::string& text);
  void UseWindowFont();
};

}  // namespace lectern::aids
