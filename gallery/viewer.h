// The panel with one picture at full size, its name and its place, and a bar that walks through the book's
// pictures from the first chapter to the last. It follows the chapter, also while it is hidden; it never
// moves the text. It is shown by a click on the strip (Browser).
//
// The index of the picture, PictureCatalogue's picnm, is its whole state.
#pragma once

#include <functional>

#include "forms/bars_and_timer.h"
#include "forms/figures.h"
#include "forms/picture_box.h"
#include "gallery/picture_catalogue.h"

namespace lectern::gallery {

class Viewer {
  PictureCatalogue& catalogue_;
  reader::Reader& reader_;
  forms::PictureBox& picp_;

 public:
  Viewer(PictureCatalogue& the_catalogue, forms::PictureBox& picp);

  // Opens the paint window on the picture that is shown; the window that owns both joins it.
  std::function<void()> OpenPaint = [] {};

  forms::Label LBLPICP{picp_, "LBLPICP"};  // the picture's name
  forms::Label lblvs{picp_, "lblvs"};      // its place
  // The picture, stretched whatever its proportions.
  forms::Image pick{picp_, "pick", {.name = "The picture", .stretch = true}};
  // Opens the picture in paint.
  forms::CommandButton Command32{picp_, "Command32", {.caption = "Paint"}};
  // Closes the panel.
  forms::CommandButton Command37{picp_, "Command37", {.caption = "Close Pictures", .is_cancel = true}};
  forms::Timer tmrpb{picp_, "tmrpb", {.enabled = false, .interval = 3000}};  // nothing enables it

 private:
  void picnm_Change();
  void tmrpic_Timer();
  void tmrpb_Timer();
  void Command37_Click();
};

}  // namespace lectern::gallery
