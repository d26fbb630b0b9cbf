// The five brushes. A click on one sets the width of the next stroke and the pointer over the canvas, which
// shows the size of the dot.
#pragma once

#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/picture_box.h"
#include "gallery/picture_catalogue.h"
#include "gallery/viewer.h"
#include "paint/canvas.h"
#include "paint/palette.h"
#include "paint/zoom_and_saves.h"

namespace lectern::paint {

class Brushes {
  forms::Window& form_;
  gallery::PictureCatalogue& gallery_;
  Canvas& canvas_;
  PenSettings& pen_;
  SaveSlots& slots_;

 public:
  Brushes(forms::Window& the_form, gallery::PictureCatalogue& the_gallery, Canvas& the_canvas,
          PenSettings& the_pen, SaveSlots& the_slots);

  // The pointer of the second brush, which a newly opened picture begins with, whatever the width.
  void ShowFirstPointer();

  forms::Frame Frame5{form_, "Frame5", {.caption = "Paint Brush Size"}};  // holds the brushes
  // The brushes from thin to thick, and the chosen one.
  forms::ControlArray<forms::PictureBox> picpbs{Frame5,
                                                "picpbs",
                                                {{.name = "Brush 1, the thinnest"},
                                                 {.name = "Brush 2"},
                                                 {.name = "Brush 3"},
                                                 {.name = "Brush 4"},
                                                 {.name = "Brush 5, the thickest"},
                                                 {.name = "The chosen brush"}}};

 private:
  void picpbs_Click(int index);
  void ShowPointer(int brush);
};

// A blank page to begin on, and the way of a painting into the gallery: its file among the pictures, and a
// record in the catalogue, so that it stands on the strip at once.
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
