// The panel with one picture at full size, its name and its place, and a bar that moves through the book's
// pictures. It follows the chapter, even while hidden, but never moves the text. Its only state is the index
// of the picture, picnm in PictureCatalogue. A click on the strip (Browser) shows it.
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

  // Set by the window: opens the paint window with the picture.
  std::function<void()> OpenPaint = [] {};

  forms::Label LBLPICP{picp_, "LBLPICP"};  // the picture's name
  forms::Label lblvs{picp_, "lblvs"};      // its place
  forms::Image pick{picp_, "pick", {.name = "The picture", .stretch = true}};
  forms::CommandButton Command32{picp_, "Command32", {.caption = "Paint"}};  // opens the picture in paint
  forms::CommandButton Command37{picp_, "Command37", {.caption = "Close Pictures", .is_cancel = true}};
  forms::Timer tmrpb{picp_, "tmrpb", {.enabled = false, .interval = 3000}};  // nothing enables it

 private:
  void picnm_Change();
};

// The strip along the bottom of the window: the book's pictures, five to a page, each with its number above
// and its chapter and verse below. Two buttons turn the page; a click selects a picture and shows it.
//
// Its only state is the page, lblendpic in PictureCatalogue. Writing its caption draws the strip; to redraw
// the same page, "" is written first. The label below the selected picture is red; the maintenance tools find
// the picture by that colour.
inline constexpr int kSlotsOnPage = 5;
inline constexpr forms::Colour kPickedColour = forms::kRed;
inline constexpr forms::Colour kUnpickedColour = forms::kButtonText;

class Browser {
  PictureCatalogue& catalogue_;
  Viewer& viewer_;
  forms::PictureBox& Picture5_;
  forms::PictureBox& picp_;

 public:
  Browser(PictureCatalogue& the_catalogue, Viewer& the_viewer, forms::PictureBox& Picture5,
          forms::PictureBox& picp);

  // Removes the mark of the selected picture.
  void ResetPictureLabels();

  forms::SSCommand SSCommand4{Picture5_, "SSCommand4", {.caption = "‹", .name = "Pictures before these"}};
  // The slots, left to right.
  forms::ControlArray<forms::Image> imgp{Picture5_,
                                         "imgp",
                                         {{.name = "First picture on the strip", .stretch = true},
                                          {.name = "Second picture on the strip", .stretch = true},
                                          {.name = "Third picture on the strip", .stretch = true},
                                          {.name = "Fourth picture on the strip", .stretch = true},
                                          {.name = "Fifth picture on the strip", .stretch = true}}};
  // 0 to 4 below the slots, 5 to 9 above them.
  forms::ControlArray<forms::Label> lblp{Picture5_, "lblp", 2 * kSlotsOnPage};
  forms::SSCommand SSCommand3{Picture5_, "SSCommand3", {.caption = "›", .name = "Pictures after these"}};

 private:
  void lblendpic_Change();
  void ShowSlot(int slot, int index);
  void imgp_Click(int slot);
  void SSCommand3_Click();
  void SSCommand4_Click();

  forms::Label& Above(int slot) { return lblp(slot + kSlotsOnPage); }
  forms::Label& Below(int slot) { return lblp(slot); }
};

}  // namespace lectern::gallery
