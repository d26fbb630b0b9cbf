// The panel with one picture at full size, its name and its place, and a bar that walks through the book's
// pictures from the first chapter to the last. It follows the chapter, also while it is hidden; it never
// moves the text. It is shown by a click on the strip (Browser).
//
// The index of the picture, PictureCatalogue's picnm, is its whole state.
#pragma once

#include <functional>

#include "forms/image.h"
#include "forms/timer.h"
#include "gallery/picture_catalogue.h"

namespace lectern::gallery {

class Viewer {
 public:
  Viewer(PictureCatalogue& the_catalogue, reader::Panels& the_panels);

  // Opens the paint window on the picture that is shown; the window that owns both joins it.
  std::function<void()> OpenPaint;

  forms::Label LBLPICP;  // the picture's name
  forms::Label lblvs;    // its place
  forms::Image pick;     // filled by the picture, whatever its proportions
  forms::CommandButton Command32;
  forms::CommandButton Command37;
  forms::Timer tmrpb;

 private:
  void picnm_Change();
  void tmrpic_Timer();
  void tmrpb_Timer();
  void Command37_Click();

  PictureCatalogue& catalogue_;
  reader::Reader& reader_;
  reader::Panels& panels_;
};

}  // namespace lectern::gallery
