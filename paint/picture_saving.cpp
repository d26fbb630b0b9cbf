#include "paint/picture_saving.h"

namespace lectern::paint {

using forms::kPointerArrow;
using forms::kPointerHourglass;

namespace {

constexpr int kCatalogue = 1;  // slot

}  // namespace

PictureSaving::PictureSaving(forms::Window& the_form, gallery::PictureCatalogue& the_gallery,
                             gallery::Viewer& the_viewer, Canvas& the_canvas, Palette& palette)
    : Command5(palette.Picture1, "Command5", {.caption = "New"}),
      Command2(the_form, "Command2", {.caption = "Save Picture"}),
      form(the_form),
      gallery(the_gallery),
      viewer(the_viewer),
      canvas(the_canvas) {
  Command5.Click = [this] { Command5_Click(); };
  Command2.Click = [this] { Command2_Click(); };
}

// The canvas keeps its size and place, and the original stays what it was.
void PictureSaving::Command5_Click() {
  canvas.picbox.Picture = form.LoadPicture(gallery.reader.Dir1.Path + "\\newpic.jpg");
}

void PictureSaving::Command2_Click() {
  canvas.picbox.Picture = canvas.picbox.Image();  // also where nothing is saved in the end
  form.MousePointer = kPointerHourglass;
  const std::string old_name = viewer.LBLPICP.Caption;
  std::string place = viewer.lblvs.Caption;
  const std::string name = form.Platform().Input("Save Picture as", "Save Picture", old_name);
  if (name.empty()) {
    form.MousePointer = kPointerArrow;
    return;
  }
  if (IsInCatalogue(name)) {
    const bool replace = form.Platform().Question(
        "Picture: " + name + " already exists. Would you like to replace the picture?", "File Found");
    form.MousePointer = kPointerArrow;
    if (!replace) return;
  } else {
    // ODDITY(name-for-a-place): a new picture leaves its name where the viewer shows the place, and takes
    // over the verse and the credit of the picture that was picked last. It is meant.
    place = name;
    files::FileSlots& slots = form.Slots();
    slots.OpenForAppending(kCatalogue, gallery.CatalogueFile());
    slots.WriteRecord(kCatalogue, name, gallery.selfile(1).Text(), gallery.selfile(2).Text());
    slots.Close(kCatalogue);
  }
  form.SavePictureKeepingBackup(canvas.picbox.Picture, gallery.reader.Dir1.Path + "\\pics\\" + name + ".JPG");
  gallery.ExtractBookPictures();
  gallery.FillPictureLists();
  viewer.LBLPICP.Caption = old_name;
  viewer.lblvs.Caption = place;
  form.MousePointer = kPointerArrow;
}

// Compares to the letter, blanks at the end included.
bool PictureSaving::IsInCatalogue(const std::string& name) {
  files::FileSlots& slots = form.Slots();
  slots.OpenForReading(kCatalogue, gallery.CatalogueFile());
  bool found = false;
  while (!found && !slots.EndOfFile(kCatalogue)) {
    found = slots.ReadField(kCatalogue) == name;
    slots.ReadField(kCatalogue);
    slots.ReadField(kCatalogue);
  }
  slots.Close(kCatalogue);
  return found;
}

}  // namespace lectern::paint
