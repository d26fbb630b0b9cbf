// The panel of fonts and colours, and the file `codex.cfg`, which stores the font. A choice in a box takes
// effect at once, on two samples and in the panes of text. Save writes the file; Close undoes nothing.
//
// The first three fields of the file are read as font, size and style, whatever they hold. An unknown style
// leaves bold and italic unchanged.
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
#include "reader/second_pane.h"
#include "reader/tool_buttons.h"

namespace lectern::reader {

// The colours of the settings panel: a strip of swatches, and options that choose whether a click on one
// colours the main window or the panels. The colours are not stored.
class DesktopColour {
 public:
  // `coloured` are the panels that take the colour.
  DesktopColour(forms::PictureBox& Picture23, std::vector<forms::PlacedControl*> coloured);

 private:
  void Swatch_Click(forms::PictureBox& swatch);
  void ApplyDesktopColour();

  forms::PictureBox& Picture23_;
  std::vector<forms::PlacedControl*> coloured_;
  // Colours the panels; set at the start.
  forms::OptionButton Option2{Picture23_, "Option2", {.caption = "Front Color", .checked = true}};
  forms::OptionButton Option3{Picture23_, "Option3", {.caption = "Back Color"}};  // colours the window
  forms::PictureBox Picture24{Picture23_, "Picture24", {.name = "Colours"}};      // holds the swatches
  std::deque<forms::PictureBox> swatches_;
  std::string ChosenColour;  // a colour number as text, signed
};

class Settings {
  Reader& reader_;
  forms::PictureBox& Picture23_;
  std::vector<forms::PlacedControl*> coloured_;
  ToolButtons& tools_;
  forms::RichTextBox& RTXT2;

 public:
  Settings(Reader& the_reader, forms::PictureBox& Picture23, std::vector<forms::PlacedControl*> coloured,
           SecondPane& second_pane, forms::Menu& oo11, ToolButtons& the_tools);

  // Writes the default record if the file is missing or too short. Reports no failure.
  void PrepareFile();

  // Reads the file into the boxes and applies them. Raises the errors of a file that is missing or too short,
  // and 380 for an invalid font size; the style then stays as it was.
  void ReadSettings();

  // Appends a record with the texts of the three boxes to the file.
  void AppendRecord();

  // Set by the window: sets the pointer over the search button, an hourglass while the samples change.
  std::function<void(int pointer)> PointAtSearchButton = [](int) {};

  forms::ComboBox Combo1{Picture23_, "Combo1", {.name = "Font"}};   // font
  forms::ComboBox Combo2{Picture23_, "Combo2", {.name = "Size"}};   // size
  forms::ComboBox Combo3{Picture23_, "Combo3", {.name = "Style"}};  // style

 private:
  void Combo1_Click();
  void Combo_Click();
  void Command36_Click();

  void ApplyFontSamples();
  void ApplyFontToPanes();

  // The heading, and the labels of the boxes.
  forms::ControlArray<forms::Label> lblsetting{
      Picture23_, "lblsetting", {"Fonts and desktop", "Font", "Size", "Style", "Colors"}};
  // Samples of the font.
  forms::ControlArray<forms::Label> lblf{Picture23_, "lblf", {"A B C D E F G", "a b c d e f g"}};
  DesktopColour colours_{Picture23_, coloured_};
  forms::CommandButton Command36{Picture23_, "Command36", {.caption = "Save", .is_default = true}};
  forms::CommandButton Command24{
      Picture23_, "Command24", {.caption = "Close", .is_cancel = true}};  // closes it

  std::string size_read_;  // what the settings file gave
  std::string style_read_;
};

}  // namespace lectern::reader
