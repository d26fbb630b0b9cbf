#include "gallery/viewer.h"

#include "base/errors.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"
#include "gallery/picture_catalogue.h"

namespace lectern::gallery {

Viewer::Viewer(PictureCatalogue& the_catalogue, forms::PictureBox& picp)
    : catalogue_(the_catalogue), reader_(catalogue_.reader), picp_(picp) {
  pick.BorderStyle = 1;
  catalogue_.picnm.Change = [this] { picnm_Change(); };
  reader_.tmrpic.Tick = [this] { tmrpic_Timer(); };
  tmrpb.Tick = [this] { tmrpb_Timer(); };
  Command32.Click = [this] { OpenPaint(); };
  Command37.Click = [this] { Command37_Click(); };
}

void Viewer::picnm_Change() {
  constexpr int kNoPictures = -1;
  if (catalogue_.picnm.Max == kNoPictures) return;
  const base::Ignoring ignore;
  const int index = catalogue_.picnm.Value;
  const std::string& name = catalogue_.lstmc(0).List(index);
  // ODDITY(picture-missing-in-viewer): where the file is missing or is no picture, the picture before stays,
  // under the new name and place.
  ignore([&] { pick.Picture = reader_.form.LoadPicture(catalogue_.PictureFile(name)); });
  LBLPICP.Caption = name;
  lblvs.Caption = catalogue_.lstmc(1).List(index);
}

// One step of the slide show, which begins anew behind the last picture.
void Viewer::tmrpic_Timer() {
  forms::HScrollBar& picnm = catalogue_.picnm;
  if (picnm.Value == picnm.Max()) {
    picnm.Value = 0;
  } else {
    picnm.Value = picnm.Value + 1;
  }
}

// Nothing enables it, and nothing ever gave it a text to show.
void Viewer::tmrpb_Timer() {
  reader_.form.Platform().Message("");
  tmrpb.Enabled = true;
}

void Viewer::Command37_Click() {
  reader_.tmrpic.Enabled = false;
  picp_.Visible = false;
}

namespace {

constexpr int kFirstPage = 4;  // the index of its last slot
constexpr const char* kPastTheList = "end";

}  // namespace

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
  // ODDITY(missing-picture-stops-the-page): a picture that cannot be loaded leaves the slots from there on as
  // they were, and on a page turn it ends the program.
  for (int slot = 0; slot < kSlotsOnPage; ++slot) ShowSlot(slot, base + slot);
  ResetPictureLabels();
}

void Browser::ShowSlot(int slot, int index) {
  const forms::Window& form = catalogue_.reader.form;
  if (catalogue_.lstmc(1).ListCount() <= index) {
    imgp(slot).Picture = form.LoadPicture(catalogue_.reader.DataFile("picend.jpg"));
    Below(slot).Caption = kPastTheList;
    Above(slot).Caption = kPastTheList;
    return;
  }
  const std::string& name = catalogue_.lstmc(0).List(index);
  // ODDITY(nameless-slot): a record without a name leaves its slot as it was.
  if (name.empty()) return;
  const std::size_t book_length = text::Length(catalogue_.reader.Book());
  imgp(slot).Picture = form.LoadPicture(catalogue_.PictureFile(name));
  Below(slot).Caption = std::string(ChapterAndVerse(catalogue_.lstmc(1).List(index), book_length));
  Above(slot).Caption = std::to_string(index + 1);
}

void Browser::ResetPictureLabels() {
  for (int slot = 0; slot < kSlotsOnPage; ++slot) Below(slot).ForeColor = kUnpickedColour;
}

void Browser::SSCommand3_Click() {
  forms::Label& lblendpic = catalogue_.lblendpic;
  // ODDITY(page-of-fillers): only a filler in the last slot stops it, so that a book of just five pictures,
  // or ten, has one more page with nothing but fillers.
  if (Below(kSlotsOnPage - 1).Caption == kPastTheList) return;
  if (lblendpic.Caption == "lblendpic") {
    lblendpic.Caption = std::to_string(kFirstPage);
  } else {
    lblendpic.Caption = text::NumberText(text::LeadingDigits(lblendpic.Caption()) + kSlotsOnPage);
  }
  ResetPictureLabels();
}

// A book without pictures stops it too: its first number is not 1, and there is no page before it.
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
  // ODDITY(filler-opens-viewer): of a filler the bar refuses the index; the picked record is emptied, and
  // the viewer opens with what it showed.
  ignore([&] { catalogue_.picnm.Value = index; });
  // The bar may stand on picture 0 already, and then nothing has changed.
  if (slot == 0 && catalogue_.lblendpic.Caption == std::to_string(kFirstPage)) {
    viewer_.LBLPICP.Caption = catalogue_.selfile(0).Text;
    viewer_.lblvs.Caption = catalogue_.selfile(1).Text;
    viewer_.pick.Picture = imgp(0).Picture;
  }
  picp_.Visible = true;
}

}  // namespace lectern::gallery
