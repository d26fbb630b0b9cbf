#include "forms/picture_box.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/errors.h"
#include "base/text/characters.h"
#include "forms/window.h"

namespace lectern::forms {

namespace {

RuledProperty<int>::Rules Within(int lowest, int highest) {
  return {.refuse = [lowest, highest](int value) {
    if (value < lowest || value > highest) throw base::RunTimeError(base::ErrorNumber::kInvalidProperty);
  }};
}

int ToPixel(double position) {
  constexpr double kFarthest = 1e6;  // well outside any box, and safe to reckon with
  return static_cast<int>(std::floor(std::clamp(position, -kFarthest, kFarthest) + 0.5));
}

constexpr int kCopyPen = static_cast<int>(RasterOperation::kCopyPen);
constexpr int kWidestPen = 32767;

// The colour at a place of the bitmap, or with no place named, the bitmap itself.
void ReadFrom(const Bitmap& bitmap, const std::vector<int>& place, Value& value) {
  constexpr int kNoColour = -1;
  if (place.empty()) {
    value = forms::Picture(bitmap);
  } else {
    const bool inside = bitmap.Contains(place[0], place[1]);
    value = inside ? static_cast<int>(bitmap.At(place[0], place[1]) & ~kOpaque) : kNoColour;
  }
}

}  // namespace

PictureBox::PictureBox(Container& parent, std::string name, const Design& design)
    : Holding(parent, Kind::kPictureBox, std::move(name), design),
      Picture(*this, "Picture", {}, {.change = [this] { PictureAssigned(); }, .counts_when_equal = true}),
      MouseIcon(*this, "MouseIcon"),
      AutoRedraw(*this, "AutoRedraw"),
      AutoSize(*this, "AutoSize"),
      BorderStyle(*this, "BorderStyle", 1),
      ScaleMode(*this, "ScaleMode", kScaleTwips, Within(0, 7)),
      DrawMode(*this, "DrawMode", kCopyPen, Within(1, 16)),
      DrawStyle(*this, "DrawStyle", 0, Within(0, 6)),
      DrawWidth(*this, "DrawWidth", 1, Within(1, kWidestPen)),
      FillColor(*this, "FillColor"),
      FillStyle(*this, "FillStyle", 1, Within(0, 7)) {}

int PictureBox::PixelWidth() const { return ToPixel(Width() / kTwipsPerPixel); }
int PictureBox::PixelHeight() const { return ToPixel(Height() / kTwipsPerPixel); }

// The colour of a canvas where no picture covers it; a colour of the desktop's theme counts as white.
Pixel PictureBox::Background() const {
  return IsSystemColour(BackColor) ? kWhitePixel : static_cast<Pixel>(BackColor()) | kOpaque;
}

void PictureBox::PictureAssigned() {
  if (AutoSize && Picture()) {
    Width = Picture().Width() * kTwipsPerPixel;
    Height = Picture().Height() * kTwipsPerPixel;
  }
  screen_.reset();
  persistent_ = {};
  if (Picture()) Persistent();
  changed_.Include({0, 0, PixelWidth(), PixelHeight()});
  Change();
}

// A bitmap of the box's present size with nothing but the background on it.
Bitmap PictureBox::Blank() const {
  Bitmap blank(PixelWidth(), PixelHeight(), Background());
  if (Picture()) blank.Stretch(*Picture(), 0, 0, Picture().Width(), Picture().Height());
  return blank;
}

Bitmap& PictureBox::Persistent() {
  if (persistent_.Empty()) persistent_ = Blank();
  return persistent_;
}

// Another size keeps what is drawn; new room shows the background.
void PictureBox::SizeWritten() {
  if (persistent_.Empty() && !Picture()) return;
  Bitmap resized = Blank();
  resized.Copy(persistent_);
  persistent_ = std::move(resized);
  screen_.reset();
  changed_.Include({0, 0, PixelWidth(), PixelHeight()});
}

forms::Picture PictureBox::Image() { return forms::Picture(Persistent()); }

double PictureBox::ToPixels(double coordinate) const {
  return ScaleMode == kScalePixels ? coordinate : coordinate / kTwipsPerPixel;
}

// Draws on the layer that AutoRedraw says. What goes to the persistent bitmap is seen on the screen too.
template <class Draw>
void PictureBox::DrawOn(Draw draw) {
  Bitmap& persistent = Persistent();
  if (!AutoRedraw && !screen_) screen_ = persistent;
  Area touched;
  if (screen_) touched.Include(draw(*screen_));
  if (AutoRedraw) touched.Include(draw(persistent));
  changed_.Include(touched);
  TellView();
}

void PictureBox::PSet(double x, double y) {
  DrawOn([&](Bitmap& bitmap) {
    return bitmap.Dot(ToPixel(ToPixels(x)), ToPixel(ToPixels(y)), DrawWidth,
                      static_cast<Pixel>(ForeColor()) & ~kOpaque, static_cast<RasterOperation>(DrawMode()));
  });
}

void PictureBox::PaintPicture(const forms::Picture& picture, double x, double y, double width,
                              double height) {
  if (!picture) throw base::RunTimeError(base::ErrorNumber::kInvalidPicture);
  DrawOn([&](Bitmap& bitmap) {
    return bitmap.Stretch(*picture, ToPixel(ToPixels(x)), ToPixel(ToPixels(y)), ToPixel(ToPixels(width)),
                          ToPixel(ToPixels(height)));
  });
}

const Bitmap& PictureBox::Shown() const { return screen_ ? *screen_ : persistent_; }

Area PictureBox::TakeChangedArea() { return std::exchange(changed_, {}); }

void PictureBox::WindowWasHidden() {
  if (!screen_) return;
  screen_.reset();
  changed_.Include({0, 0, PixelWidth(), PixelHeight()});
  TellView();
}

bool PictureBox::ReadIndexed(std::string_view property, const std::vector<int>& arguments,
                             Value& value) const {
  const bool image = text::EqualFolded(property, "Image") && arguments.empty();
  const bool point = text::EqualFolded(property, "Point") && arguments.size() == 2;
  if (!image && !point) return false;
  if (persistent_.Empty()) {
    ReadFrom(Blank(), arguments, value);
  } else {
    ReadFrom(persistent_, arguments, value);
  }
  return true;
}

}  // namespace lectern::forms
