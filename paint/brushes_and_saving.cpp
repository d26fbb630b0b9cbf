#include "paint/brushes_and_saving.h"

#include <cstdint>

#include "forms/picture_file.h"
#include "paint/drawings.h"

namespace lectern::paint {

namespace {

constexpr int kCatalogue = 1;  // slot
constexpr int kBrushes = 5;
constexpr int kChosen = 5;  // the box that shows the selected brush
// Of the five brushes, and of the stroke that the box of the selected brush shows at the start.
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

// ODDITY(pointer-of-another-brush): the first stroke has the width of brush 3, but the pointer of brush 2.
void Brushes::ShowFirstPointer() { ShowPointer(1); }

// A click on the box of the selected brush clears the marks and selects nothing.
void Brushes::picpbs_Click(int index) {
  // Without a separator after the folder's path, the file is next to the data folder.
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

PictureSaving::PictureSaving(forms::Window& the_form, gallery::PictureCatalogue& the_gallery,
                             gallery::Viewer& the_viewer, Canvas& the_canvas, Palette& palette)
    : palette_(palette), form_(the_form), gallery_(the_gallery), viewer_(the_viewer), canvas_(the_canvas) {
  // The canvas keeps its size and place, and the saves keep the original.
  Command5.Click = [this] {
    canvas_.picbox.Picture = form_.LoadPicture(gallery_.reader.DataFile("newpic.jpg"));
  };
  Command2.Click = [this] { Command2_Click(); };
}

void PictureSaving::Command2_Click() {
  canvas_.picbox.Picture = canvas_.picbox.Image();  // even if nothing is saved
  const std::int64_t pixels =
      std::int64_t{canvas_.picbox.Picture().Width()} * canvas_.picbox.Picture().Height();
  if (pixels > forms::kMostPixelsSaved) {
    form_.Platform().Message("The picture is too large to be saved. Zoom out before you save it.");
    return;
  }
  form_.MousePointer = forms::kPointerHourglass;
  const std::string old_name = viewer_.LBLPICP.Caption;
  std::string place = viewer_.lblvs.Caption;
  // The picture is found by the name that its record holds.
  const std::string name =
      files::FieldText(form_.Platform().Input("Save Picture as", "Save Picture", old_name));
  if (name.empty()) {
    form_.MousePointer = forms::kPointerArrow;
    return;
  }
  if (IsInCatalogue(name)) {
    const bool replace = form_.Platform().Question(
        "Picture: " + name + " already exists. Would you like to replace the picture?", "File Found");
    form_.MousePointer = forms::kPointerArrow;
    if (!replace) return;
  } else {
    // ODDITY(name-for-a-place): the viewer shows the name of a new picture as its place, and its record gets
    // the verse and the credit of the picture selected last.
    place = name;
    files::FileSlots& slots = form_.Slots();
    slots.OpenForAppending(kCatalogue, gallery_.CatalogueFile());
    gallery::WritePictureRecord(slots, kCatalogue,
                                {name, gallery_.selfile(1).Text(), gallery_.selfile(2).Text()});
    slots.Close(kCatalogue);
  }
  form_.SavePictureKeepingBackup(canvas_.picbox.Picture, gallery_.reader.DataFile("pics\\" + name + ".JPG"));
  gallery_.ListBookPictures();
  viewer_.LBLPICP.Caption = old_name;
  viewer_.lblvs.Caption = place;
  form_.MousePointer = forms::kPointerArrow;
  saved("pics/" + name + ".JPG");
}

// The comparison includes case and blanks at the end.
bool PictureSaving::IsInCatalogue(const std::string& name) {
  files::FileSlots& slots = form_.Slots();
  slots.OpenForReading(kCatalogue, gallery_.CatalogueFile());
  bool found = false;
  while (!found && !slots.EndOfFile(kCatalogue)) {
    found = gallery::ReadPictureRecord(slots, kCatalogue).name == name;
  }
  slots.Close(kCatalogue);
  return found;
}

}  // namespace lectern::paint
