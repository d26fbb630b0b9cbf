#include "paint/canvas.h"

#include "base/errors.h"
#include "base/text/numbers.h"
#include "paint/drawings.h"

namespace lectern::paint {

namespace {

constexpr double kStep = 2000;  // twips

}  // namespace

Canvas::Canvas(forms::Window& the_form, PenSettings& the_pen) : form_(the_form), pen_(the_pen) {
  picbox.ScaleMode = forms::kScalePixels;
  picbox.MousePointer = forms::kPointerCustom;
  picbox.BorderStyle = 0;
  const forms::Picture page = WhitePage();
  picbox.Width = page.Width() * forms::kTwipsPerPixel;
  picbox.Height = page.Height() * forms::kTwipsPerPixel;
  picbox.Picture = page;
  constexpr Direction kDirections[] = {Direction::kLeft, Direction::kUp, Direction::kRight, Direction::kDown};
  imgs.ForEach([&](int index, forms::Image& image) {
    image.Picture = ArrowPicture(kDirections[index]);
    image.Click = [this, index] { imgs_Click(index); };
  });
  picbox.MouseDown = [this](forms::MouseEvent mouse) { picbox_MouseDown(mouse); };
  picbox.MouseMove = [this](forms::MouseEvent mouse) { picbox_MouseMove(mouse); };
  pen_.Text2.Change = [this] { picbox.ScaleMode = text::ToInteger(pen_.Text2.Text()); };
}

void Canvas::Centre() {
  picbox.Top = (Frame6.Height - picbox.Height) / 2;
  picbox.Left = (Frame6.Width - picbox.Width) / 2;
}

void Canvas::ShowInItsSize(const forms::Picture& picture) {
  picbox.AutoSize = true;
  picbox.Picture = picture;
  picbox.AutoSize = false;
  Centre();
}

void Canvas::TakePictureSize() {
  imgp.Width = 1;
  imgp.Height = 1;
  imgp.Picture = picbox.Picture;
  picbox.Width = imgp.Width;
  picbox.Height = imgp.Height;
  Centre();
}

// Any button draws. Failures are ignored.
void Canvas::picbox_MouseDown(forms::MouseEvent mouse) {
  const base::Ignoring ignore;
  pen_.Apply(picbox);
  ignore([&] { picbox.PSet(mouse.x, mouse.y); });
}

void Canvas::picbox_MouseMove(forms::MouseEvent mouse) {
  if (mouse.button == 0) return;
  // The window's drawing position, which never changes.
  pen_.xpos.Caption = text::NumberText(form_.CurrentX);
  pen_.ypos.Caption = text::NumberText(form_.CurrentY);
  picbox.PSet(mouse.x, mouse.y);
}

// ODDITY(canvas-without-a-stop): the last step may leave a gap at an edge, and a picture that fits can be
// moved out of the middle.
void Canvas::imgs_Click(int index) {
  enum { kLeft, kAbove, kRight, kBelow };
  if (index == kLeft && picbox.Left < 1) picbox.Left = picbox.Left + kStep;
  if (index == kAbove && picbox.Top < 1) picbox.Top = picbox.Top + kStep;
  if (index == kRight && picbox.Width + picbox.Left > Frame6.Width) picbox.Left = picbox.Left - kStep;
  if (index == kBelow && picbox.Height + picbox.Top > Frame6.Height) picbox.Top = picbox.Top - kStep;
}

void PenSettings::Apply(forms::PictureBox& canvas) const {
  const base::Ignoring ignore;
  const auto number = [this](int index) { return text::ToInteger(mde(index).Text()); };
  ignore([&] { canvas.DrawWidth = number(kDrawWidth); });
  ignore([&] { canvas.DrawStyle = number(kDrawStyle); });
  ignore([&] { canvas.FillStyle = number(kFillStyle); });
  ignore([&] { canvas.DrawMode = number(kDrawMode); });
  ignore([&] { canvas.FillColor = text::ToLong(mde(kFillColor).Text()); });
  canvas.ForeColor = clr1.BackColor;
}

}  // namespace lectern::paint
