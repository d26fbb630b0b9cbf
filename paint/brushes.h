// The five brushes. A click on one sets the width of the next stroke and the pointer over the canvas, which
// shows the size of the dot.
#pragma once

#include "forms/containers.h"
#include "forms/picture_box.h"
#include "gallery/picture_catalogue.h"
#include "paint/canvas.h"
#include "paint/pen_settings.h"
#include "paint/save_slots.h"

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

}  // namespace lectern::paint
