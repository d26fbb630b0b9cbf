// The panel of fonts and colours, and the file `codex.cfg` that keeps the font from one run to the next. A
// pick in one of the boxes shows at once, on two samples and in the panes of text; Save writes the file, and
// Close takes nothing back.
//
// The file's record is font, size and style. The first three fields are read as these, whatever they hold: an
// unknown style leaves bold and italic alone.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/picture_box.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"

namespace lectern::reader {

// The colours of the settings panel: a strip of swatches, and whether a click on one colours the main window
// or the panels. Nothing of it is stored; the next start has the colours of the desktop again.
class DesktopColour {
 public:
  // `coloured` is what the panels' colour goes to.
  DesktopColour(forms::PictureBox& Picture23, std::vector<forms::PlacedControl*> coloured);

 private:
  void Swatch_Click(forms::PictureBox& swatch);
  void ApplyDesktopColour();

  forms::PictureBox& Picture23_;
  std::vector<forms::PlacedControl*> coloured_;
  // Colours the panels; set at the start.
  forms::OptionButton Option2{Picture23_, "Option2", {.caption = "Front Color", .checked = true}};
  // Colours the window.
  forms::OptionButton Option3{Picture23_, "Option3", {.caption = "Back Color"}};
  forms::PictureBox Picture24{Picture23_, "Picture24", {.name = "Colours"}};  // holds the swatches
  std::deque<forms::PictureBox> swatches_;
  std::string ChosenColour;  // a colour number as text, signed
};

// The panel with a second pane of text. Nothing opens it; the font settings keep its pane in step with the
// first, and its button closes it.
class SecondPane {
  forms::PictureBox& Picture4_;

 public:
  explicit SecondPane(forms::PictureBox& Picture4);

  // The text.
  forms::RichTextBox RTXT2{Picture4_, "RTXT2", {.name = "Text of the other version", .read_only = true}};
  forms::Label Label36{Picture4_, "Label36"};  // name of the version
  // Closes the pane.
  forms::CommandButton Command34{Picture4_, "Command34", {.caption = "Close", .is_cancel = true}};
};

class Settings {
  Reader& reader_;
  forms::PictureBox& Picture23_;
  std::vector<forms::PlacedControl*> coloured_;
  ToolButtons& tools_;
  forms::RichTextBox& RTXT2;

 public:
  // `coloured` is what a picked colour of the panels goes to.
  Settings(Reader& the_reader, forms::PictureBox& Picture23, std::vector<forms::PlacedControl*> coloured,
           SecondPane& second_pane, forms::Menu& oo11, ToolButtons& the_tools);

  // Sees to it that there is a file: one that is missing, or too short to hold anything, gets the default
  // record. Shows no failure.
  void PrepareFile();

  // Reads the file, puts its texts into the boxes and applies them. Errors: those of a
  // file that is missing or too short, and 380 for a size that no font can have, which leaves the style
  // alone.
  void ReadSettings();

  // Appends the record of the three boxes to the file.
  void AppendRecord();

  // Joined by the window: shows a pointer over the search button, which waits while a font is tried on.
  std::function<void(int pointer)> PointAtSearchButton = [](int) {};

  forms::ComboBox Combo1{Picture23_, "Combo1", {.name = "Font"}};   // font
  forms::ComboBox Combo2{Picture23_, "Combo2", {.name = "Size"}};   // size
  forms::ComboBox Combo3{Picture23_, "Combo3", {.name = "Style"}};  // style

 private:
  void oo11_Click();
  void Combo1_Click();
  void Combo_Click();
  void Command36_Click();
  void Command24_Click();

  void ApplyFontSamples();
  void ApplyFontToPanes();

  // Heading, and what each box is for.
  forms::ControlArray<forms::Label> lblsetting{Picture23_,
                                               "lblsetting",
                                               {{.caption = "Fonts and desktop"},
                                                {.caption = "Font"},
                                                {.caption = "Size"},
                                                {.caption = "Style"},
                                                {.caption = "Colors"}}};
  // Samples of the font.
  forms::ControlArray<forms::Label> lblf{
      Picture23_, "lblf", {{.caption = "A B C D E F G"}, {.caption = "a b c d e f g"}}};
  DesktopColour colours_{Picture23_, coloured_};
  // Saves.
  forms::CommandButton Command36{Picture23_, "Command36", {.caption = "Save", .is_default = true}};
  // Closes the panel.
  forms::CommandButton Command24{Picture23_, "Command24", {.caption = "Close", .is_cancel = true}};

  std::string size_read_;  // what the settings file gave
  std::string style_read_;
};

}  // namespace lectern::reader
