#include "paint/zoom_and_saves.h"

#include "base/errors.h"
#include "base/text/numbers.h"
#include "paint/drawings.h"

namespace lectern::paint {

Zoom::Zoom(forms::Window& form, Canvas& the_canvas) : form_(form), canvas_(the_canvas) {
  cmdm.ForEach([this](int index, forms::SSCommand& button) {
    button.Picture = GlassPicture();
    button.Click = [this, index] { cmdm_Click(index); };
  });
}

// The limit is 1 GiB. Going back to a large state at a low level could otherwise enlarge it without end.
bool Zoom::IsTooLargeToDouble() const {
  constexpr double kLargest = 1 << 28;  // pixels of four bytes
  const double width = 2 * canvas_.picbox.Width / forms::kTwipsPerPixel;
  const double height = 2 * canvas_.picbox.Height / forms::kTwipsPerPixel;
  return width * height > kLargest;
}

void Zoom::cmdm_Click(int index) {
  constexpr int kOut = 1;
  forms::PictureBox& picbox = canvas_.picbox;
  if (index != kOut && IsTooLargeToDouble()) {
    picbox.HostWindow().Platform().Message("The picture is too large to be shown any larger.");
    return;
  }
  picbox.Picture = picbox.Image();
  picbox2.Height = 1;
  picbox2.Width = 1;
  picbox2.Stretch = true;
  picbox2.Picture = picbox.Picture;
  picbox2.Stretch = false;
  // ODDITY(level-as-text): typing a level does not zoom, but the next zoom counts from it. Outside the three
  // levels the buttons stay as they were.
  txt5.Text = text::NumberText(text::NumberValue(txt5.Text()) + (index == kOut ? -1 : 1));
  const auto next = [index](double length) {  // half of it is in whole twips
    return index == kOut ? text::RoundToLong(length) / 2 : 2 * length;
  };
  picbox2.Width = next(picbox.Width);
  picbox2.Height = next(picbox.Height);
  picbox.Width = picbox2.Width;
  picbox.Height = picbox2.Height;
  // ODDITY(zoom-leaves-an-edge): the divisor is slightly more than the 15 twips of a pixel, so the picture is
  // painted slightly smaller than the canvas.
  constexpr double kTwipsPerPixel = 15.08;
  // What the zoom paints is part of the picture, even while strokes are not.
  const bool strokes_are_kept = picbox.AutoRedraw;
  picbox.AutoRedraw = true;
  picbox.PaintPicture(picbox.Picture, 0, 0, picbox.Width / kTwipsPerPixel, picbox.Height / kTwipsPerPixel);
  picbox.AutoRedraw = strokes_are_kept;
  canvas_.Centre();
  if (txt5.Text == "0" || txt5.Text == "1" || txt5.Text == "2") {
    cmdm(0).Enabled = txt5.Text != "2";
    cmdm(1).Enabled = txt5.Text != "0";
  }
}

SaveSlots::SaveSlots(forms::Window& the_form, Canvas& the_canvas, Zoom& the_zoom)
    : form_(the_form), canvas_(the_canvas), zoom_(the_zoom) {
  IMGSPB.ForEach([this](int index, forms::Image& slot) {
    slot.BorderStyle = 1;
    // ODDITY(level-outlives-going-back): going back from a zoomed state shows the picture in its own size,
    // but the zoom level stays.
    slot.Click = [this, index] { canvas_.ShowInItsSize(IMGSPB(index).Picture); };
  });
}

void SaveSlots::TakeSnapshot(const std::string& scratch_file) {
  forms::PictureBox& picbox = canvas_.picbox;
  // ODDITY(first-strokes-fade): strokes before the first saved state are only on the screen.
  picbox.AutoRedraw = true;
  if (zoom_.txt5.Text == "0" && picbox.Picture()) {
    const base::Ignoring ignore;
    ignore([&] { form_.SavePicture(picbox.Picture, scratch_file); });
  }
  // ODDITY(newest-save-holds): after a click on the newest state, the canvas shows the same picture, and no
  // state is saved until it shows another one, however much is painted.
  if (IMGSPB(4).Picture == picbox.Picture) return;
  for (int slot = 1; slot < 4; ++slot) IMGSPB(slot).Picture = IMGSPB(slot + 1).Picture;
  IMGSPB(4).Picture = picbox.Image();
}

}  // namespace lectern::paint
