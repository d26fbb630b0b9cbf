#include "paint/picture_saving.h"

namespace lectern::paint {

using forms::kPointerArrow;
using forms::kPointerHourglass;

namespace {

constexpr int kCatalogue = 1;  // slot

}  // namespace

PictureSaving::PictureSaving(forms::Window& the_form, gallery::PictureCatalogue& the_gallery,
                             gallery::Viewer& the_viewer, Canvas& the_canvas, Palette& palette)
    : palette_(palette), form_(the_form), gallery_(the_gallery), viewer_(the_viewer), canvas_(the_canvas) {
  Command5.Click = [this] { Command5_Click(); };
  Command2.Click = [this] { Command2_Click(); };
}

// The canvas keeps its size and place, and the original stays what it was.
void PictureSaving::Command5_Click() {
  canvas_.picbox.Picture = form_.LoadPicture(gallery_.reader.DataFile("newpic.jpg"));
}

void PictureSaving::Command2_Click() {
  canvas_.picbox.Picture = canvas_.picbox.Image();  // also where nothing is saved in the end
  form_.MousePointer = kPointerHourglass;
  const std::string old_name = viewer_.LBLPICP.Caption;
  std::string place = viewer_.lblvs.Caption;
  const std::string name = form_.Platform().Input("Save Picture as", "Save Picture", old_name);
  if (name.empty()) {
    form_.MousePointer = kPointerArrow;
    return;
  }
  if (IsInCatalogue(name)) {
    const bool replace = form_.Platform().Question(
        "Picture: " + name + " already exists. Would you like to replace the picture?", "File Found");
    form_.MousePointer = kPointerArrow;
    if (!replace) return;
  } else {
    // ODDITY(name-for-a-place): a new picture leaves its name where the viewer shows the place, and takes
    // over the verse and the credit of the picture that was picked last.
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
  form_.MousePointer = kPointerArrow;
}

// Compares to the letter, blanks at the end included.
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
