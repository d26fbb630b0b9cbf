#include "paint/zoom_and_saves.h"

#include <cstdint>

#include "base/errors.h"
#include "base/text/numbers.h"
#include "paint/drawings.h"

namespace lectern::paint {

namespace {

// In whole twips; an odd one is dropped.
std::int32_t HalfOf(double length) { return text::RoundToLong(length) / 2; }

}  // namespace

Zoom::Zoom(forms::Window& form, Canvas& the_canvas) : form_(form), canvas_(the_canvas) {
  cmdm.ForEach([this](int index, forms::SSCommand& button) {
    button.Picture = GlassPicture();
    button.Click = [this, index] { cmdm_Click(index); };
  });
}

// Going back to a large save at a small level, again and again, would let the canvas grow without end: a
// canvas of more than 1 GiB is refused.
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
  // ODDITY(level-as-text): a level that a person types zooms nothing by itself; the next zoom counts on from
  // it, and outside the three levels the buttons stay as they were.
  const double level = text::NumberValue(txt5.Text());
  if (index == kOut) {
    txt5.Text = text::NumberText(level - 1);
    picbox2.Width = HalfOf(picbox.Width);
    picbox2.Height = HalfOf(picbox.Height);
  } else {
    txt5.Text = text::NumberText(level + 1);
    picbox2.Width = picbox.Width + picbox.Width;
    picbox2.Height = picbox.Height + picbox.Height;
  }
  picbox.Width = picbox2.Width;
  picbox.Height = picbox2.Height;
  // ODDITY(zoom-leaves-an-edge): the divisor is a little more than the 15 twips of a pixel, so that the
  // picture is painted a little smaller than the canvas.
  constexpr double kTwipsPerPixel = 15.08;
  // What the zoom paints belongs to the picture, also while strokes reach only the screen.
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
