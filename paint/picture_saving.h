// A blank page to begin on, and the way of a painting into the gallery: its file among the pictures, and a
// record in the catalogue, so that it stands on the strip at once.
#pragma once

#include "forms/buttons.h"
#include "gallery/picture_catalogue.h"
#include "gallery/viewer.h"
#include "paint/canvas.h"
#include "paint/palette.h"

namespace lectern::paint {

class PictureSaving {
  Palette& palette_;
  forms::Window& form_;
  gallery::PictureCatalogue& gallery_;
  gallery::Viewer& viewer_;
  Canvas& canvas_;

 public:
  PictureSaving(forms::Window& the_form, gallery::PictureCatalogue& the_gallery, gallery::Viewer& the_viewer,
                Canvas& the_canvas, Palette& palette);

  forms::CommandButton Command5{palette_.Picture1, "Command5", {.caption = "New"}};  // begins a blank page
  forms::CommandButton Command2{form_, "Command2", {.caption = "Save Picture"}};     // saves the picture

 private:
  void Command5_Click();
  void Command2_Click();
  bool IsInCatalogue(const std::string& name);
};

}  // namespace lectern::paint
