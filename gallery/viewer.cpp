#include "gallery/viewer.h"

#include "base/errors.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"

namespace lectern::gallery {

namespace {

constexpr int kFirstPage = 4;  // the index of its last slot
constexpr const char* kPastTheList = "end";

}  // namespace

Viewer::Viewer(PictureCatalogue& the_catalogue, forms::PictureBox& picp)
    : catalogue_(the_catalogue), reader_(catalogue_.reader), picp_(picp) {
  pick.BorderStyle = 1;
  catalogue_.picnm.Change = [this] { picnm_Change(); };
  // The slide show starts again after the last picture.
  reader_.tmrpic.Tick = [&picnm = catalogue_.picnm] {
    picnm.Value = picnm.Value == picnm.Max() ? 0 : picnm.Value + 1;
  };
  // The text to show is always empty.
  tmrpb.Tick = [this] {
    reader_.form.Platform().Message("");
    tmrpb.Enabled = true;
  };
  Command32.Click = [this] { OpenPaint(); };
  Command37.Click = [this] {
    reader_.tmrpic.Enabled = false;
    picp_.Visible = false;
  };
}

void Viewer::picnm_Change() {
  constexpr int kNoPictures = -1;
  if (catalogue_.picnm.Max == kNoPictures) return;
  const base::Ignoring ignore;
  const int index = catalogue_.picnm.Value;
  const std::string& name = catalogue_.lstmc(0).List(index);
  // ODDITY(picture-missing-in-viewer): if the file is missing or damaged, the previous picture stays under
  // the new name and place.
  ignore([&] { pick.Picture = reader_.form.LoadPicture(catalogue_.PictureFile(name)); });
  LBLPICP.Caption = name;
  lblvs.Caption = catalogue_.lstmc(1).List(index);
}

Browser::Browser(PictureCatalogue& the_catalogue, Viewer& the_viewer, forms::PictureBox& Picture5,
                 forms::PictureBox& picp)
    : catalogue_(the_catalogue), viewer_(the_viewer), Picture5_(Picture5), picp_(picp) {
  catalogue_.lblendpic.Change = [this] { lblendpic_Change(); };
  imgp.ForEach([this](int slot, forms::Image& image) {
    image.BorderStyle = 1;
    image.Click = [this, slot] { imgp_Click(slot); };
  });
  SSCommand3.Click = [this] { SSCommand3_Click(); };
  SSCommand4.Click = [this] { SSCommand4_Click(); };
}

void Browser::lblendpic_Change() {
  if (catalogue_.lblendpic.Caption == "") return;
  const int base = catalogue_.PageStart();
  // ODDITY(missing-picture-stops-the-page): if a picture cannot be loaded, its slot and those after it stay
  // as they were, and a turn of the page ends the program.
  for (int slot = 0; slot < kSlotsOnPage; ++slot) ShowSlot(slot, base + slot);
  ResetPictureLabels();
}

void Browser::ShowSlot(int slot, int index) {
  const forms::Window& form = catalogue_.reader.form;
  if (catalogue_.lstmc(1).ListCount() <= index) {
    imgp(slot).Picture = form.LoadPicture(catalogue_.reader.DataFile("picend.jpg"));
    Below(slot).Caption = kPastTheList;
    Above(slot).Caption = kPastTheList;
    imgp(slot).CallIt("No more pictures");
    return;
  }
  const std::string& name = catalogue_.lstmc(0).List(index);
  // ODDITY(nameless-slot): the slot of a record without a name stays as it was.
  if (name.empty()) return;
  const std::size_t book_length = text::Length(catalogue_.reader.Book());
  imgp(slot).Picture = form.LoadPicture(catalogue_.PictureFile(name));
  Below(slot).Caption = std::string(ChapterAndVerse(catalogue_.lstmc(1).List(index), book_length));
  Above(slot).Caption = std::to_string(index + 1);
  imgp(slot).CallIt(name + ", " + catalogue_.lstmc(1).List(index));
}

void Browser::ResetPictureLabels() {
  for (int slot = 0; slot < kSlotsOnPage; ++slot) Below(slot).ForeColor = kUnpickedColour;
}

void Browser::SSCommand3_Click() {
  forms::Label& lblendpic = catalogue_.lblendpic;
  // ODDITY(page-of-fillers): only a filler in the last slot stops paging, so a book with exactly five or ten
  // pictures has another page with only fillers.
  if (Below(kSlotsOnPage - 1).Caption == kPastTheList) return;
  lblendpic.Caption = lblendpic.Caption == "lblendpic"
                          ? std::to_string(kFirstPage)
                          : text::NumberText(text::LeadingDigits(lblendpic.Caption()) + kSlotsOnPage);
  ResetPictureLabels();
}

// The second check is for a book without pictures, where the first number is not "1".
void Browser::SSCommand4_Click() {
  forms::Label& lblendpic = catalogue_.lblendpic;
  if (Above(0).Caption == "1" || catalogue_.PageStart() <= 0) return;
  lblendpic.Caption = text::NumberText(text::LeadingDigits(lblendpic.Caption()) - kSlotsOnPage);
}

void Browser::imgp_Click(int slot) {
  const base::Ignoring ignore;
  const int index = catalogue_.PageStart() + slot;
  ResetPictureLabels();
  for (int field = 0; field < catalogue_.selfile.Count(); ++field) {
    catalogue_.selfile(field).Text = catalogue_.lstmc(field).List(index);
  }
  Below(slot).ForeColor = kPickedColour;
  // ODDITY(filler-opens-viewer): the bar refuses the index of a filler. The boxes of the selected record
  // become empty, and the viewer opens with its old picture.
  ignore([&] { catalogue_.picnm.Value = index; });
  // If the bar is at picture 0 already, it does not run its Change handler.
  if (slot == 0 && catalogue_.lblendpic.Caption == std::to_string(kFirstPage)) {
    viewer_.LBLPICP.Caption = catalogue_.selfile(0).Text;
    viewer_.lblvs.Caption = catalogue_.selfile(1).Text;
    viewer_.pick.Picture = imgp(0).Picture;
  }
  picp_.Visible = true;
}

}  // namespace lectern::gallery
