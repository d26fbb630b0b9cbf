#include "paint/drawings.h"

#include <cmath>

namespace lectern::paint {

namespace {

constexpr forms::Pixel kInk = forms::kOpaque | 0x503C28;   // dark blue
constexpr forms::Pixel kSign = forms::kOpaque | 0xB07F4A;  // a blue that is visible on light and dark
constexpr forms::Pixel kNothing = 0;                       // transparent

}  // namespace

forms::Picture ArrowPicture(Direction direction) {
  constexpr int kSize = 32;
  constexpr int kTip = 8;  // distance of the tip and the foot from the edges
  const bool is_flat = direction == Direction::kLeft || direction == Direction::kRight;
  const bool is_reverse = direction == Direction::kRight || direction == Direction::kDown;
  forms::Bitmap arrow(kSize, kSize, kNothing);
  for (int along = 0; along < kSize - 2 * kTip; ++along) {
    for (int across = -along; across <= along; ++across) {
      const int from_edge = is_reverse ? kSize - 1 - kTip - along : kTip + along;
      const int middle = kSize / 2 + across * 3 / 4;
      arrow.Set(is_flat ? from_edge : middle, is_flat ? middle : from_edge, kSign);
    }
  }
  return forms::Picture(std::move(arrow));
}

forms::Picture GlassPicture() {
  constexpr int kSize = 20;
  constexpr double kMiddle = 8;
  constexpr double kRim = 6;  // radius
  constexpr int kThickness = 3;
  forms::Bitmap glass(kSize, kSize, kNothing);
  const auto dot = [&glass](double x, double y) {
    glass.Dot(static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y)), kThickness, kSign,
              forms::RasterOperation::kCopyPen);
  };
  for (double turn = 0; turn < 6.283; turn += 0.1) {
    dot(kMiddle + kRim * std::cos(turn), kMiddle + kRim * std::sin(turn));
  }
  for (double along = kMiddle + kRim * 0.7; along < kSize - kThickness + 1; ++along) dot(along, along);
  return forms::Picture(std::move(glass));
}

forms::Picture StrokePicture(int width, int thickness) {
  constexpr int kHeight = 122;
  forms::Bitmap stroke(width, kHeight, kNothing);
  const double swing = (width - thickness) / 2.0;
  for (int y = thickness / 2 + 1; y < kHeight - thickness / 2; ++y) {
    const double x = width / 2.0 + swing * std::sin(y * 6.283 / kHeight);
    stroke.Dot(static_cast<int>(std::lround(x)), y, thickness, kInk, forms::RasterOperation::kCopyPen);
  }
  return forms::Picture(std::move(stroke));
}

forms::Picture WhitePage() { return forms::Picture(forms::Bitmap(533, 363)); }

}  // namespace lectern::paint
