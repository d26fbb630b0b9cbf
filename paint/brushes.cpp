#include "paint/brushes.h"

#include "paint/drawings.h"

namespace lectern::paint {

namespace {

constexpr int kBrushes = 5;
constexpr int kChosen = 5;  // the box that shows the chosen brush
// Of the brushes and, last, of the stroke that stands in the box of the chosen one at the start.
constexpr int kStrokeWidths[] = {14, 18, 20, 37, 45, 22};  // pixels
constexpr int kDotWidths[] = {5, 10, 15, 20, 25, 15};

}  // namespace

Brushes::Brushes(forms::Window& the_form, gallery::PictureCatalogue& the_gallery, Canvas& the_canvas,
                 PenSettings& the_pen, SaveSlots& the_slots)
    : form_(the_form), gallery_(the_gallery), canvas_(the_canvas), pen_(the_pen), slots_(the_slots) {
  picpbs.ForEach([this](int index, forms::PictureBox& box) {
    box.BorderStyle = 0;
    box.AutoSize = index == kChosen;
    box.Picture = StrokePicture(kStrokeWidths[index], kDotWidths[index] * 2 / 3);
    box.Click = [this, index] { picpbs_Click(index); };
  });
}

void Brushes::ShowPointer(int brush) {
  canvas_.picbox.MouseIcon =
      form_.LoadPicture(gallery_.reader.DataFile("cdx" + std::to_string(brush + 1) + ".ico"));
}

// ODDITY(pointer-of-another-brush): the first stroke has the width of the third brush under the pointer of
// the second.
void Brushes::ShowFirstPointer() { ShowPointer(1); }

// A click on the box of the chosen brush clears the marks and chooses nothing.
void Brushes::picpbs_Click(int index) {
  // Joined to the folder's path without a separator: the file lies beside the data folder.
  slots_.TakeSnapshot(gallery_.reader.Dir1.Path + "TEST.jpg");
  for (int x = 0; x < kBrushes; ++x) {
    if (x == index) {
      ShowPointer(x);
      picpbs(x).BorderStyle = 1;
      picpbs(kChosen).Picture = picpbs(x).Picture;
    } else {
      picpbs(x).BorderStyle = 0;
    }
  }
  if (index < kBrushes) pen_.mde(PenSettings::kDrawWidth).Text = std::to_string(kDotWidths[index]);
}

}  // namespace lectern::paint
