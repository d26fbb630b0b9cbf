#include "forms/image.h"

#include <utility>

#include "forms/window.h"

namespace lectern::forms {

Image::Image(Container& parent, std::string name, const Design& design)
    : PlacedControl(parent, Kind::kImage, std::move(name), design),
      Picture(*this, "Picture", {}, {.change = [this] { TakePictureSize(); }, .counts_when_equal = true}),
      Stretch(*this, "Stretch", design.stretch, {.change = [this] { TakePictureSize(); }}),
      BorderStyle(*this, "BorderStyle") {}

void Image::TakePictureSize() {
  if (Stretch || !Picture()) return;
  Width = Picture().Width() * kTwipsPerPixel;
  Height = Picture().Height() * kTwipsPerPixel;
}

}  // namespace lectern::forms
