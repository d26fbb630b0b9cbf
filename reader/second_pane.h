// The panel with a second pane of text: the open chapter in the version that is not chosen. The font settings
// apply to it too.
#pragma once

#include "forms/buttons.h"
#include "forms/picture_box.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"

namespace lectern::reader {

class Reader;

class SecondPane {
  forms::PictureBox& Picture4_;

 public:
  explicit SecondPane(forms::PictureBox& Picture4);

  // Loads the open chapter and shows the panel. No control does this; it is a command of the desktop. Raises
  // the errors of a version folder that is missing, and then changes nothing.
  void Open(Reader& reader);

  bool IsOpen() const { return Picture4_.Visible; }

  forms::RichTextBox RTXT2{Picture4_, "RTXT2", {.name = "Text of the other version", .read_only = true}};
  forms::Label Label36{Picture4_, "Label36"};  // name of the version
  forms::CommandButton Command34{
      Picture4_, "Command34", {.caption = "Close", .is_cancel = true}};  // closes it
};

}  // namespace lectern::reader
