// The five brushes. A click on one sets the width of the next stroke and the pointer over the canvas, which
// shows the size of the dot.
#pragma once

#include "forms/frame.h"
#include "forms/picture_box.h"
#include "gallery/picture_catalogue.h"
#include "paint/canvas.h"
#include "paint/pen_settings.h"
#include "paint/save_slots.h"

namespace lectern::paint {

class Brushes {
 public:
  Brushes(forms::Window& the_form, gallery::PictureCatalogue& the_gallery, Canvas& the_canvas,
          PenSettings& the_pen, SaveSlots& the_slots);

  // The pointer of the second brush, which a newly opened picture begins with, whatever the width.
  void ShowFirstPointer();

  forms::Frame Frame5;
  forms::ControlArray<forms::PictureBox> picpbs;  // thin to thick, and the chosen one

 private:
  void picpbs_Click(int index);
  void ShowPointer(int brush);

  forms::Window& form_;
  gallery::PictureCatalogue& gallery_;
  Canvas& canvas_;
  PenSettings& pen_;
  SaveSlots& slots_;
};

}  // namespace lectern::paint
