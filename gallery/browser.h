// The strip along the bottom of the window: the book's pictures, five at a time, each with its number above
// and its chapter and verse below. Two buttons turn the page; a click on a picture picks it and opens the
// viewer on it.
//
// The page is PictureCatalogue's lblendpic and nothing else: writing its caption draws the strip, and
// whoever wants the same page drawn anew writes "" first. The picture that is picked is the one whose label
// below is red; the keeper's tools find it by that colour.
#pragma once

#include "forms/figures.h"
#include "forms/picture_box.h"
#include "gallery/picture_catalogue.h"
#include "gallery/viewer.h"

namespace lectern::gallery {

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
