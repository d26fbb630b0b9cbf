#include "forms/large_picture.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <unistd.h>
#include <utility>

#include "base/errors.h"

namespace lectern::forms {

namespace {

constexpr std::size_t kMostHeld = std::size_t{3} << 20;  // pixels

std::size_t CountOf(int width, int height) {
  return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

// The mean of a square of pixels.
Pixel Mean(const Bitmap& bitmap, int left, int top, int side) {
  std::uint64_t sums[4] = {};
  for (int y = top; y < top + side; ++y) {
    const Pixel* const row = bitmap.Row(y) + left;
    for (int x = 0; x < side; ++x) {
      for (int part = 0; part < 4; ++part) sums[part] += (row[x] >> (8 * part)) & 0xFF;
    }
  }
  Pixel mean = 0;
  const auto count = static_cast<std::uint64_t>(side) * static_cast<std::uint64_t>(side);
  for (int part = 0; part < 4; ++part) mean |= static_cast<Pixel>(sums[part] / count) << (8 * part);
  return mean;
}

Bitmap SmallOf(const Bitmap& bitmap) {
  int side = 1;
  while (CountOf(bitmap.Width() / side, bitmap.Height() / side) > kMostHeld) ++side;
  if (std::min(bitmap.Width(), bitmap.Height()) < side) return Bitmap(1, 1, bitmap.At(0, 0));
  Bitmap small(bitmap.Width() / side, bitmap.Height() / side);
  for (int y = 0; y < small.Height(); ++y) {
    for (int x = 0; x < small.Width(); ++x) small.Set(x, y, Mean(bitmap, x * side, y * side, side));
  }
  return small;
}

}  // namespace

bool LargePicture::IsLarge(const Bitmap& bitmap) {
  return CountOf(bitmap.Width(), bitmap.Height()) > kMostHeld;
}

LargePicture::LargePicture(const Bitmap& bitmap, base::Platform& platform, files::Descriptor file,
                           std::size_t length)
    : width_(bitmap.Width()),
      height_(bitmap.Height()),
      small_(SmallOf(bitmap)),
      platform_(platform),
      file_(std::move(file)),
      length_(length) {}

Bitmap LargePicture::Pixels() const {
  std::string bytes(length_, '\0');
  std::size_t size = 0;
  for (ssize_t taken = 1; taken > 0 && size < length_; size += static_cast<std::size_t>(taken)) {
    taken = ::pread(file_.Number(), bytes.data() + size, length_ - size, static_cast<off_t>(size));
    if (taken < 0) break;
  }
  try {
    const Picture picture = platform_.DecodePicture(bytes);
    if (picture.Width() == width_ && picture.Height() == height_) return *picture;
  } catch (const base::RunTimeError&) {  // it is shown as an empty page
  }
  return Bitmap(width_, height_);
}

}  // namespace lectern::forms
