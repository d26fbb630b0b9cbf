#include "ui/form4.h"

#include "base/errors.h"
#include "paint/drawings.h"
#include "ui/places.h"

namespace lectern::ui {

Form4::Form4(forms::Services services, gallery::PictureCatalogue& gallery, gallery::Viewer& viewer,
             const Hooks& hooks)
    : Window(services, "Form4", "paint"), gallery_(gallery), viewer_(viewer) {
  constexpr double kClientWidth = 15675;  // twips
  constexpr double kClientHeight = 10485;
  Width = kClientWidth + forms::kFrameWidth;
  Height = kClientHeight + forms::kFrameHeight;
  Command1.Click = [this] { Visible = false; };
  routines["PrintPaintPicture"] = [this, print_picture = hooks.print_picture](const std::string&) {
    print_picture(canvas_.picbox.Picture);
  };
  saving_.saved = hooks.saved;
  Apply(kForm4Places, *this);
}

void Form4::Form_Load() {
  const base::Ignoring ignore;
  const base::ScreenSize screen = Platform().Screen();
  Top = (screen.height - Height) / 2;
  Left = (screen.width - Width) / 2;
  ignore([&] { palette_.LoadColours(); });
  palette_.Command4.SetFocus();  // a brush with the focus would look selected
}

void Form4::Open(const forms::Picture& picture) {
  canvas_.picbox.Picture = picture ? picture : paint::WhitePage();
  Visible = true;
  BringToFront();
  canvas_.TakePictureSize();
  palette_.TakeFirstPair();
  brushes_.ShowFirstPointer();
  slots_.IMGSPB(0).Picture = canvas_.picbox.Picture;
}

}  // namespace lectern::ui
