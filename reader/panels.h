// The panels of the main window: what the features lie in. Those that open over the reading area are hidden
// at the start; the frames that stand beyond the right edge are the program's storage and the keeper's
// bench, and no reader comes to them.
#pragma once

#include "forms/frame.h"
#include "forms/label.h"
#include "forms/picture_box.h"
#include "forms/window.h"

namespace lectern::reader {

class Panels {
 public:
  explicit Panels(forms::Window& form);

  forms::PictureBox Picture6;  // the row of tool buttons
  forms::PictureBox Picture5;  // the strip of pictures

  forms::PictureBox picp;       // one picture at full size
  forms::Frame frms;            // text search
  forms::Frame frmc;            // concordance
  forms::PictureBox frmhelp;    // help
  forms::PictureBox Picture17;  // trivia
  forms::PictureBox Picture1;   // bookmarks
  forms::PictureBox Picture2;   // in the bookmarks: steps the chapter
  forms::PictureBox Picture23;  // fonts and colours
  forms::Frame frmd;            // dictionary
  forms::PictureBox Picture4;   // second text pane

  forms::Frame frmscale;  // in the text search: progress of a scan of the whole text

  forms::Frame Frame1;  // holds the folders
  forms::Frame FRMMARK;
  forms::Label Label22;
  forms::Frame Frame2;  // concordance builder
  forms::Frame Frame5;  // upkeep of the pictures
  forms::Frame Frame6;
};

}  // namespace lectern::reader
