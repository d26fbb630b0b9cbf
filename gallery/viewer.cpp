#include "gallery/viewer.h"

#include "base/errors.h"

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

}  // namespace lectern::gallery
