#include "ui/desktop/pictures.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <cstring>
#include <functional>
#include <numeric>
#include <utility>

#include "core/forms/control.h"
#include "core/run_time_error.h"

namespace lectern::desktop {

namespace {

using namespace std::string_view_literals;

// Which decoder the first bytes call for; nullptr for none. Asking Qt instead would load every decoder that
// the desktop has.
const char* FormatOf(std::string_view bytes) {
  constexpr std::pair<std::string_view, const char*> kBeginnings[] = {
      {"\xFF\xD8\xFF"sv, "jpeg"}, {"\x89PNG\r\n\x1A\n"sv, "png"}, {"GIF8"sv, "gif"}, {"BM"sv, "bmp"},
      {"\0\0\1\0"sv, "ico"},      {"\0\0\2\0"sv, "ico"},
  };
  for (const auto& [beginning, format] : kBeginnings) {
    if (bytes.starts_with(beginning)) return format;
  }
  return nullptr;
}

// The pixels of a JPEG, which Qt has as red, green, blue from the top bits down, as the program has them.
void CopyOpaque(const QImage& image, forms::Bitmap& bitmap) {
  for (int y = 0; y < image.height(); ++y) {
    const auto* const from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    std::transform(from, from + image.width(), bitmap.Row(y), [](QRgb colour) {
      return forms::kOpaque | (colour & 0xFF00U) | ((colour >> 16U) & 0xFFU) | ((colour & 0xFFU) << 16U);
    });
  }
}

void Copy(const QImage& image, forms::Bitmap& bitmap) {
  const std::size_t row = sizeof(forms::Pixel) * static_cast<std::size_t>(image.width());
  for (int y = 0; y < image.height(); ++y) std::memcpy(bitmap.Row(y), image.constScanLine(y), row);
}

bool IsOpaque(const forms::Bitmap& bitmap) {
  const std::size_t count =
      static_cast<std::size_t>(bitmap.Width()) * static_cast<std::size_t>(bitmap.Height());
  const forms::Pixel* const pixels = bitmap.Row(0);
  return (std::accumulate(pixels, pixels + count, forms::kOpaque, std::bit_and<>()) & forms::kOpaque) ==
         forms::kOpaque;
}

}  // namespace

QImage ImageOf(const forms::Bitmap& bitmap) {
  if (bitmap.Empty()) return {};
  const auto* const bytes = reinterpret_cast<const uchar*>(bitmap.Row(0));
  const auto row = static_cast<qsizetype>(sizeof(forms::Pixel)) * bitmap.Width();
  return {bytes, bitmap.Width(), bitmap.Height(), row, QImage::Format_RGBA8888};
}

forms::Picture Decode(std::string_view bytes) {
  const core::RunTimeError none(core::ErrorNumber::kInvalidPicture);
  const char* const format = FormatOf(bytes);
  if (format == nullptr) throw none;

  constexpr int kLargest = 1024;  // megabytes, for a header that promises the moon
  QImageReader::setAllocationLimit(kLargest);
  QByteArray held = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&held);
  QImageReader reader(&buffer, format);
  reader.setAutoDetectImageFormat(false);
  QImage image = reader.read();
  if (image.isNull()) throw none;
  forms::Bitmap bitmap(image.width(), image.height());
  if (image.format() == QImage::Format_RGB32) {
    CopyOpaque(image, bitmap);
  } else {
    Copy(std::move(image).convertToFormat(QImage::Format_RGBA8888), bitmap);
  }
  return forms::Picture(std::move(bitmap));
}

QPixmap Filled(const forms::Picture& picture, const QSize& size) {
  if (!picture || picture->Empty() || size.isEmpty()) return {};
  QImage image = ImageOf(*picture);
  // Without an opacity to reckon with, Qt scales four times as fast.
  if (IsOpaque(*picture)) image.reinterpretAsFormat(QImage::Format_RGBX8888);
  return QPixmap::fromImage(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

QCursor PointerOf(const forms::Picture& picture) {
  // An image of its own, as the pointer may outlive the picture.
  return picture ? QCursor(QPixmap::fromImage(ImageOf(*picture).copy())) : QCursor(Qt::ArrowCursor);
}

QCursor PointerOf(int number) {
  constexpr Qt::CursorShape kShapes[] = {
      Qt::ArrowCursor,   Qt::ArrowCursor,     Qt::CrossCursor,    Qt::IBeamCursor,     Qt::ArrowCursor,
      Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,  Qt::SizeFDiagCursor, Qt::SizeHorCursor,
      Qt::UpArrowCursor, Qt::WaitCursor,      Qt::ForbiddenCursor};
  static_assert(std::size(kShapes) == forms::kPointerHourglass + 2);
  const bool known = number >= 0 && number < static_cast<int>(std::size(kShapes));
  return known ? kShapes[number] : Qt::ArrowCursor;
}

}  // namespace lectern::desktop
