#include "forms/picture.h"

#include <cassert>
#include <cstdint>

namespace lectern::forms {

Picture::Picture(Bitmap bitmap) : content_(std::make_shared<Content>()) {
  content_->width = bitmap.Width();
  content_->height = bitmap.Height();
  content_->bitmap = std::move(bitmap);
}

Picture::Picture(std::unique_ptr<const PictureSource> source) : content_(std::make_shared<Content>()) {
  assert(source != nullptr);
  content_->width = source->Width();
  content_->height = source->Height();
  content_->source = std::move(source);
}

const Bitmap& Picture::operator*() const {
  assert(content_ != nullptr);
  if (content_->source) {
    content_->bitmap = content_->source->Pixels();
    content_->source.reset();
  }
  return content_->bitmap;
}

std::string BmpBytes(const Bitmap& bitmap) {
  constexpr std::uint32_t kHeaders = 14 + 40;
  const auto width = static_cast<std::uint32_t>(bitmap.Width());
  const auto height = static_cast<std::uint32_t>(bitmap.Height());
  const std::uint32_t row_size = (width * 3 + 3) / 4 * 4;  // rows end on a multiple of four bytes

  std::string bytes;
  bytes.reserve(kHeaders + std::size_t{row_size} * height);
  const auto put = [&bytes](std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i, value >>= 8) bytes.push_back(static_cast<char>(value & 0xFF));
  };
  bytes.append("BM");
  put(kHeaders + row_size * height, 4);
  put(0, 4);
  put(kHeaders, 4);
  put(40, 4);  // the second header's own size
  put(width, 4);
  put(height, 4);
  put(1, 2);   // planes
  put(24, 2);  // bits a pixel
  put(0, 4);   // not compressed
  put(row_size * height, 4);
  put(3780, 4);  // pixels a metre: 96 dots an inch
  put(3780, 4);
  put(0, 8);
  for (int y = bitmap.Height() - 1; y >= 0; --y) {  // the lowest row comes first
    const Pixel* const row = bitmap.Row(y);
    for (int x = 0; x < bitmap.Width(); ++x) {
      put((row[x] >> 16) & 0xFF, 1);
      put((row[x] >> 8) & 0xFF, 1);
      put(row[x] & 0xFF, 1);
    }
    bytes.append(row_size - width * 3, '\0');
  }
  return bytes;
}

}  // namespace lectern::forms
