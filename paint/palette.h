// The palette: pairs of a pen value, which goes to the canvas, and a colour, which the swatch shows. The two
// differ because paint takes its colour away from what it is put on. A swatch can be filled anew with the
// pair in hand, three bars mix a new one, and the palette is kept in `colors.dat`.
//
// A swatch is a circle with a label over it. The label's caption is the pen value, in the circle's own
// colour, and it takes the mouse.
#pragma once

#include <functional>

#include "forms/buttons.h"
#include "forms/picture_box.h"
#include "forms/scroll_bar.h"
#include "forms/shape.h"
#include "forms/text_box.h"
#include "gallery/picture_catalogue.h"
#include "paint/pen_settings.h"
#include "paint/save_slots.h"

namespace lectern::paint {

class Palette {
 public:
  Palette(forms::Window& the_form, gallery::PictureCatalogue& the_gallery, PenSettings& the_pen,
          SaveSlots& the_slots);

  void LoadColours();

  // The pair that a newly opened picture begins with.
  void TakeFirstPair();

  forms::PictureBox Picture1;  // the panel
  forms::ControlArray<forms::Shape> clrbox;
  forms::ControlArray<forms::Label> clrboxs;
  forms::PictureBox clr2;  // its colour is the one in hand, as it shows
  forms::CommandButton Command4;
  forms::CommandButton Command3;

  forms::Frame Frame3;  // the colour bars
  forms::ControlArray<forms::HScrollBar> scr1;
  forms::ControlArray<forms::Label> Label2;
  forms::TextBox Text3;
  forms::CommandButton Clear;

 private:
  void clrboxs_MouseDown(int index, const forms::MouseEvent& mouse);
  void scr1_Change();
  void Command3_Click();
  void clr2_Change();

  forms::Window& form_;
  gallery::PictureCatalogue& gallery_;
  PenSettings& pen_;
  SaveSlots& slots_;
};

}  // namespace lectern::paint
