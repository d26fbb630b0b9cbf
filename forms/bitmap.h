// A rectangle of pixels and the pixel work that drawing comes down to. Every pixel is a colour number
// (red + 256 times green + 65536 times blue) with its opacity in the top byte, 255 for a solid one.
// Positions count from 0 at the top left; what falls outside is not drawn. A bitmap of more than four
// gigabytes is refused (error 7).
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace lectern::forms {

using Pixel = std::uint32_t;

inline constexpr Pixel kOpaque = 0xFF000000U;
inline constexpr Pixel kWhitePixel = 0xFFFFFFFFU;

// How a pen meets what is already there: the raster operations by their number, 1 to 16.
enum class RasterOperation : int {
  kBlackness = 1,
  kNotMergePen,
  kMaskNotPen,  // 3: destination AND NOT pen, what the paint window draws with
  kNotCopyPen,
  kMaskPenNot,
  kInvert,
  kXorPen,
  kNotMaskPen,
  kMaskPen,
  kNotXorPen,
  kNop,
  kMergeNotPen,
  kCopyPen,
  kMergePenNot,
  kMergePen,
  kWhiteness,
};

Pixel Combine(RasterOperation operation, Pixel destination, Pixel pen);

// The part of a bitmap that an operation touched; empty where right <= left.
struct Area {
  int left = 0, top = 0, right = 0, bottom = 0;

  bool Empty() const { return right <= left || bottom <= top; }
  void Include(const Area& other);
};

class Bitmap {
 public:
  Bitmap() = default;
  Bitmap(int width, int height, Pixel fill = kWhitePixel);

  int Width() const { return width_; }
  int Height() const { return height_; }
  bool Empty() const { return pixels_.empty(); }

  bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

  // Requires: Contains(x, y).
  Pixel At(int x, int y) const { return pixels_[Inside(x, y)]; }
  void Set(int x, int y, Pixel pixel) { pixels_[Inside(x, y)] = pixel; }

  // Requires: 0 <= y < Height().
  const Pixel* Row(int y) const { return pixels_.data() + RowStart(y); }
  Pixel* Row(int y) { return pixels_.data() + RowStart(y); }

  // One round dot of the given diameter around the middle of pixel (x, y); an even diameter reaches one
  // pixel further to the left and above. Drawing the same place twice combines twice.
  Area Dot(int x, int y, int diameter, Pixel pen, RasterOperation operation);

  // The whole of another bitmap, stretched to width by height at (left, top); each pixel takes the
  // nearest one of the source. Where the source is transparent, the destination stays.
  Area Stretch(const Bitmap& source, int left, int top, int width, int height);

  // As much of another bitmap as there is room for, at the top left.
  void Copy(const Bitmap& source);

 private:
  std::size_t RowStart(int y) const {
    assert(y >= 0 && y < height_);
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
  }
  std::size_t Inside(int x, int y) const {
    assert(Contains(x, y));
    return RowStart(y) + static_cast<std::size_t>(x);
  }

  int width_ = 0;
  int height_ = 0;
  std::vector<Pixel> pixels_;
};

}  // namespace lectern::forms
