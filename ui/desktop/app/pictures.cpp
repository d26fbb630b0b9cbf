#include "ui/desktop/app/pictures.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <numeric>
#include <string>
#include <utility>

#include "base/errors.h"
#include "forms/control.h"

namespace lectern::desktop {

namespace {

using namespace std::string_view_literals;

// The decoder for a file that begins with these bytes; nullptr if there is none. Qt would load all installed
// decoders to find out.
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

// Copies the pixels of a JPEG, which Qt stores in the order of a QRgb.
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

forms::Bitmap BitmapOf(QImage image) {
  forms::Bitmap bitmap(image.width(), image.height());
  if (image.format() == QImage::Format_RGB32) {
    CopyOpaque(image, bitmap);
  } else {
    Copy(std::move(image).convertToFormat(QImage::Format_RGBA8888), bitmap);
  }
  return bitmap;
}

// Reads a picture without copying its bytes. Refuses a picture with more than a gigabyte of pixels.
class PictureReader {
 public:
  PictureReader(std::string_view bytes, const char* format)
      : held_(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()))),
        buffer_(&held_),
        reader_(&buffer_, format) {
    QImageReader::setAllocationLimit(kLargest);
    reader_.setAutoDetectImageFormat(false);
  }

  static bool Allows(const QSize& size) {
    constexpr qint64 kMostPixels = qint64{kLargest} * 1024 * 1024 / qint64{sizeof(forms::Pixel)};
    return size.width() > 0 && size.height() > 0 && qint64{size.width()} * size.height() <= kMostPixels;
  }

  QImageReader* operator->() { return &reader_; }

 private:
  static constexpr int kLargest = 1024;  // megabytes

  QByteArray held_;
  QBuffer buffer_;
  QImageReader reader_;
};

// A JPEG. Decoding it at a small size takes a fraction of the time and memory of all its pixels.
class JpegSource : public forms::PictureSource {
 public:
  // Returns null if the bytes are not a picture. Reading the first row is enough to tell. If the file has a
  // single scan, damage after that row only leaves gaps; if it has several, all of them are read for it.
  static std::unique_ptr<const JpegSource> From(std::string_view bytes) {
    const QSize size = PictureReader(bytes, kFormat)->size();
    if (!PictureReader::Allows(size) || FirstRows(bytes, {size.width(), 1}).isNull()) return nullptr;
    return std::make_unique<const JpegSource>(bytes, size);
  }

  JpegSource(std::string_view bytes, const QSize& size) : bytes_(bytes), size_(size) {}

  int Width() const override { return size_.width(); }
  int Height() const override { return size_.height(); }

  forms::Bitmap Pixels() const override {
    QImage image = PictureReader(bytes_, kFormat)->read();
    // After the last row the decoder looks at what follows the picture. Damage there must not cost the rows.
    if (image.isNull()) image = FirstRows(bytes_, {size_.width(), size_.height() - 1}).copy({{}, size_});
    return BitmapOf(std::move(image));
  }

  // Returns null if the picture has to be scaled from its pixels.
  QImage ScaledTo(const QSize& size) const {
    PictureReader reader(bytes_, kFormat);
    reader->setScaledSize(size);
    return reader->read();
  }

  static constexpr const char* kFormat = "jpeg";

 private:
  static QImage FirstRows(std::string_view bytes, const QSize& size) {
    PictureReader reader(bytes, kFormat);
    reader->setClipRect({{}, size});
    return reader->read();
  }

  std::string bytes_;
  QSize size_;
};

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
  const base::RunTimeError none(base::ErrorNumber::kInvalidPicture);
  const char* const format = FormatOf(bytes);
  if (format == nullptr) throw none;

  if (format == std::string_view(JpegSource::kFormat)) {
    std::unique_ptr<const JpegSource> jpeg = JpegSource::From(bytes);
    if (jpeg == nullptr) throw none;
    return forms::Picture(std::move(jpeg));
  }
  QImage image = PictureReader(bytes, format)->read();
  if (image.isNull()) throw none;
  return forms::Picture(BitmapOf(std::move(image)));
}

QPixmap Scaled(const forms::Picture& picture, const QSize& size) {
  if (!picture || size.isEmpty()) return {};
  if (const auto* const jpeg = dynamic_cast<const JpegSource*>(picture.Source())) {
    if (const QImage scaled = jpeg->ScaledTo(size); !scaled.isNull()) return QPixmap::fromImage(scaled);
  }
  if (picture->Empty()) return {};
  QImage image = ImageOf(*picture);
  // Qt scales four times as fast without opacity.
  if (IsOpaque(*picture)) image.reinterpretAsFormat(QImage::Format_RGBX8888);
  return QPixmap::fromImage(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

QCursor PointerOf(const forms::Picture& picture) {
  // A copy, as the pointer may outlive the picture.
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
