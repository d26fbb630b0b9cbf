#include "paint/palette.h"

#include "base/errors.h"
#include "base/text/numbers.h"

namespace lectern::paint {

namespace {

constexpr forms::Colour kOrange = 33023;
constexpr int kColours = 1;  // slot

std::string ColourText(forms::Colour colour) { return std::to_string(colour); }

}  // namespace

Palette::Palette(forms::Window& the_form, gallery::PictureCatalogue& the_gallery, PenSettings& the_pen,
                 SaveSlots& the_slots)
    : form_(the_form), gallery_(the_gallery), pen_(the_pen), slots_(the_slots) {
  clrbox.ForEach([](int index, forms::Shape& circle) {
    circle.FigureKind = forms::kShapeCircle;
    circle.BackColor = index == 0 ? kOrange : forms::kRed;
  });
  clrboxs.ForEach([this](int index, forms::Label& swatch) {
    swatch.ForeColor = clrbox(index).BackColor;
    swatch.MouseDown = [this, index](forms::MouseEvent mouse) { clrboxs_MouseDown(index, mouse); };
  });
  scr1.ForEach([this](int, forms::HScrollBar& bar) { bar.Change = [this] { scr1_Change(); }; });
  clr2.Change = [this] { clr2_Change(); };
  Command4.Click = [this] { Frame3.Visible = true; };
  Clear.Click = [this] { Frame3.Visible = false; };
  Command3.Click = [this] { Command3_Click(); };
}

// If the file has too few lines, the other swatches stay as they are. Extra lines are ignored.
void Palette::LoadColours() {
  const base::Ignoring ignore;
  files::FileSlots& files = form_.Slots();
  int counter = 0;
  ignore([&] { files.OpenForReading(kColours, gallery_.reader.DataFile("colors.dat")); });
  while (files.IsOpen(kColours) && !files.EndOfFile(kColours)) {
    std::string value;
    forms::Colour shown = 0;
    const bool whole = ignore([&] {
      value = files.ReadField(kColours);
      shown = files.ReadNumber(kColours);
    });
    if (whole && counter < kSwatches) {
      clrboxs(counter).Caption = value;
      clrbox(counter).BackColor = shown;
      clrboxs(counter).ForeColor = shown;
    }
    ++counter;
  }
  ignore([&] { files.Close(kColours); });
}

// ODDITY(first-pen): the first pen value is the number of the swatch's shape, almost black, while the current
// colour is that of the first swatch.
void Palette::TakeFirstPair() {
  pen_.clr1.BackColor = clrbox(0).FigureKind();
  clr2.BackColor = clrbox(0).BackColor;
}

// The right button sets the swatch to the current pair; any other button takes the swatch's pair.
void Palette::clrboxs_MouseDown(int index, const forms::MouseEvent& mouse) {
  constexpr int kRightButton = 2;
  slots_.TakeSnapshot("TEST.jpg");
  if (mouse.button == kRightButton) {
    clrbox(index).BackColor = clr2.BackColor;
    clrboxs(index).Caption = ColourText(pen_.clr1.BackColor);
    clrboxs(index).ForeColor = clr2.BackColor;
  } else {
    pen_.clr1.BackColor = text::RoundToLong(text::NumberValue(clrboxs(index).Caption()));
    clr2.BackColor = clrbox(index).BackColor;
  }
}

// ODDITY(mixed-pair): the bars make a dark pen and a bright colour, which is only roughly its complement.
void Palette::scr1_Change() {
  const int red = scr1(0).Value;
  const int green = scr1(1).Value;
  const int blue = scr1(2).Value;
  pen_.clr1.BackColor = forms::Rgb(red, green, blue);
  clr2.BackColor = forms::Rgb(256 - 10 * red, 256 - 10 * green, 256 - 10 * blue);
  Text3.Text = ColourText(pen_.clr1.BackColor);
}

void Palette::Command3_Click() {
  const std::string path = gallery_.reader.DataFile("colors.dat");
  files::FileSlots& files = form_.Slots();
  form_.Files().SetAside(path);
  files.OpenForAppending(kColours, path);
  for (int i = 0; i < kSwatches; ++i)
    files.WriteRecord(kColours, clrboxs(i).Caption(), clrbox(i).BackColor());
  files.Close(kColours);
}

// Runs when the box's picture changes, which never happens.
void Palette::clr2_Change() {
  pen_.Label3.Caption = ColourText(clr2.BackColor);
  Text3.Text = ColourText(clr2.BackColor);
}

}  // namespace lectern::paint
