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

// The strip along the bottom of the window: the book's pictures, five at a time, each with its number above
// and its chapter and verse below. Two buttons turn the page; a click on a picture picks it and opens the
// viewer on it.
//
// The page is PictureCatalogue's lblendpic and nothing else: writing its caption draws the strip, and
// whoever wants the same page drawn anew writes "" first. The picture that is picked is the one whose label
// below is red; the keeper's tools find it by that colour.
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

  // Takes the mark from whichever picture is picked.
  void ResetPictureLabels();

  // To the page before.
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
  // To the next page.
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
