// The panel of fonts and colours, and the file `codex.cfg` that keeps the font from one run to the next. A
// pick in one of the boxes shows at once, on two samples and in the panes of text; Save writes the file, and
// Close takes nothing back.
//
// The file's record is font, size and style. Whoever reads it takes the first three fields for these,
// whatever they are: a style that is none of the four leaves bold and italic alone.
#pragma once

#include <functional>
#include <string>

#include "forms/combo_box.h"
#include "forms/label.h"
#include "reader/desktop_colour.h"
#include "reader/menus.h"
#include "reader/reader.h"
#include "reader/second_pane.h"
#include "reader/tool_buttons.h"

namespace lectern::reader {

class Settings {
  Reader& reader_;
  Panels& panels_;
  ToolButtons& tools_;
  forms::RichTextBox& RTXT2;

 public:
  Settings(Reader& the_reader, Panels& the_panels, SecondPane& second_pane, Menus& menus,
           ToolButtons& the_tools);

  // Reads the file, puts its texts into the boxes and applies them. What fails is the caller's: a file that
  // is missing or too short, and a size that no font can have, which leaves the style behind it untouched.
  void ReadSettings();

  // Joined by the window: shows a pointer over the search button, which waits while a font is tried on.
  std::function<void(int pointer)> PointAtSearchButton = [](int) {};

  forms::ComboBox Combo1{panels_.Picture23, "Combo1", {.name = "Font"}};   // font
  forms::ComboBox Combo2{panels_.Picture23, "Combo2", {.name = "Size"}};   // size
  forms::ComboBox Combo3{panels_.Picture23, "Combo3", {.name = "Style"}};  // style

 private:
  void oo11_Click();
  void Combo1_Click();
  void Combo_Click();
  void Command36_Click();
  void Command24_Click();

  void ApplyFontSamples();
  void ApplyFontToPanes();

  // Heading, and what each box is for.
  forms::ControlArray<forms::Label> lblsetting{panels_.Picture23,
                                               "lblsetting",
                                               {{.caption = "Fonts and desktop"},
                                                {.caption = "Font"},
                                                {.caption = "Size"},
                                                {.caption = "Style"},
                                                {.caption = "Colors"}}};
  // Samples of the font.
  forms::ControlArray<forms::Label> lblf{
      panels_.Picture23, "lblf", {{.caption = "A B C D E F G"}, {.caption = "a b c d e f g"}}};
  DesktopColour colours_{panels_};
  // Saves.
  forms::CommandButton Command36{panels_.Picture23, "Command36", {.caption = "Save", .is_default = true}};
  // Closes the panel.
  forms::CommandButton Command24{panels_.Picture23, "Command24", {.caption = "Close", .is_cancel = true}};

  std::string size_read_;  // what the settings file gave
  std::string style_read_;
};

}  // namespace lectern::reader
