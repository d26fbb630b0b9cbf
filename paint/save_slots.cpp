#include "paint/save_slots.h"

#include "base/errors.h"

namespace lectern::paint {

SaveSlots::SaveSlots(forms::Window& the_form, Canvas& the_canvas, Zoom& the_zoom)
    : form_(the_form), canvas_(the_canvas), zoom_(the_zoom) {
  IMGSPB.ForEach([this](int index, forms::Image& slot) {
    slot.BorderStyle = 1;
    slot.Click = [this, index] { IMGSPB_Click(index); };
  });
}

void SaveSlots::TakeSnapshot(const std::string& scratch_file) {
  forms::PictureBox& picbox = canvas_.picbox;
  // ODDITY(first-strokes-fade): until the first state is kept, strokes reach only the screen.
  picbox.AutoRedraw = true;
  if (zoom_.txt5.Text == "0" && picbox.Picture()) {
    const base::Ignoring ignore;
    ignore([&] { form_.SavePicture(picbox.Picture, scratch_file); });
  }
  // ODDITY(newest-save-holds): after a click on the newest state the canvas shows that very picture, and
  // nothing is kept until another one is set, however much is painted.
  if (IMGSPB(4).Picture == picbox.Picture) return;
  IMGSPB(1).Picture = IMGSPB(2).Picture;
  IMGSPB(2).Picture = IMGSPB(3).Picture;
  IMGSPB(3).Picture = IMGSPB(4).Picture;
  IMGSPB(4).Picture = picbox.Image();
}

// ODDITY(level-outlives-going-back): going back from a zoomed state shows the picture in its own size under
// the zoom level that stood.
void SaveSlots::IMGSPB_Click(int index) { canvas_.ShowInItsSize(IMGSPB(index).Picture); }

}  // namespace lectern::paint
