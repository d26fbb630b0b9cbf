#include "forms/bitmap.h"

#include <algorithm>
#include <cmath>

#include "base/errors.h"

namespace lectern::forms {

namespace {

// A picture that was zoomed and kept again and again would outgrow any machine, which then stops more than
// this program.
std::size_t CountOf(int width, int height) {
  constexpr std::size_t kMostPixels = std::size_t{1} << 30;
  const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  if (count > kMostPixels) throw base::RunTimeError(base::ErrorNumber::kOutOfMemory);
  return count;
}

// The bits that an operation leaves; those of the opacity do not count.
Pixel Combined(RasterOperation operation, Pixel d, Pixel p) {
  switch (operation) {
    case RasterOperation::kBlackness:
      return 0;
    case RasterOperation::kNotMergePen:
      return ~(d | p);
    case RasterOperation::kMaskNotPen:
      return d & ~p;
    case RasterOperation::kNotCopyPen:
      return ~p;
    case RasterOperation::kMaskPenNot:
      return p & ~d;
    case RasterOperation::kInvert:
      return ~d;
    case RasterOperation::kXorPen:
      return d ^ p;
    case RasterOperation::kNotMaskPen:
      return ~(d & p);
    case RasterOperation::kMaskPen:
      return d & p;
    case RasterOperation::kNotXorPen:
      return ~(d ^ p);
    case RasterOperation::kNop:
      return d;
    case RasterOperation::kMergeNotPen:
      return d | ~p;
    case RasterOperation::kCopyPen:
      return p;
    case RasterOperation::kMergePenNot:
      return p | ~d;
    case RasterOperation::kMergePen:
      return d | p;
    case RasterOperation::kWhiteness:
      return kWhitePixel;
  }
  return d;
}

}  // namespace

Pixel Combine(RasterOperation operation, Pixel destination, Pixel pen) {
  return Combined(operation, destination, pen) | kOpaque;
}

void Area::Include(const Area& other) {
  if (other.Empty()) return;
  if (Empty()) {
    *this = other;
    return;
  }
  left = std::min(left, other.left);
  top = std::min(top, other.top);
  right = std::max(right, other.right);
  bottom = std::max(bottom, other.bottom);
}

Bitmap::Bitmap(int width, int height, Pixel fill)
    : width_(std::max(width, 0)), height_(std::max(height, 0)), pixels_(CountOf(width_, height_), fill) {}

Area Bitmap::Dot(int x, int y, int diameter, Pixel pen, RasterOperation operation) {
  const int size = std::max(diameter, 1);
  const double radius = size / 2.0;
  // The middle of the dot, in a plane where pixel n reaches from n to n + 1.
  const double middle_x = size % 2 == 1 ? x + 0.5 : x;
  const double middle_y = size % 2 == 1 ? y + 0.5 : y;
  const int first_row = y - size / 2;
  Area touched;
  for (int row = std::max(first_row, 0); row < std::min(first_row + size, height_); ++row) {
    const double up = row + 0.5 - middle_y;
    const double half = std::sqrt(std::max(radius * radius - up * up, 0.0));
    // Pixels whose middle lies inside the circle.
    const int left = std::max(static_cast<int>(std::ceil(middle_x - half - 0.5)), 0);
    const int right = std::min(static_cast<int>(std::floor(middle_x + half - 0.5)) + 1, width_);
    Pixel* const pixels = Row(row);
    for (int column = left; column < right; ++column) {
      pixels[column] = Combine(operation, pixels[column], pen);
    }
    touched.Include({left, row, right, row + 1});
  }
  return touched;
}

Area Bitmap::Stretch(const Bitmap& source, int left, int top, int width, int height) {
  if (source.width_ == 0 || source.height_ == 0 || width <= 0 || height <= 0) return {};
  const Area area{std::max(left, 0), std::max(top, 0), std::min(left + width, width_),
                  std::min(top + height, height_)};
  if (area.Empty()) return {};
  const auto nearest = [](int at, int from, int to) {
    return static_cast<int>(static_cast<std::int64_t>(at) * from / to);
  };
  std::vector<int> columns(static_cast<std::size_t>(area.right - area.left));
  for (int x = area.left; x < area.right; ++x) {
    columns[static_cast<std::size_t>(x - area.left)] = nearest(x - left, source.width_, width);
  }
  for (int y = area.top; y < area.bottom; ++y) {
    const Pixel* const from = source.Row(nearest(y - top, source.height_, height));
    Pixel* to = Row(y) + area.left;
    for (const int column : columns) {
      const Pixel pixel = from[column];
      if (pixel >= 0x80000000U) *to = pixel | kOpaque;  // half opaque or more
      ++to;
    }
  }
  return area;
}

void Bitmap::Copy(const Bitmap& source) {
  for (int y = 0; y < std::min(height_, source.height_); ++y) {
    std::copy_n(source.Row(y), std::min(width_, source.width_), Row(y));
  }
}

}  // namespace lectern::forms
