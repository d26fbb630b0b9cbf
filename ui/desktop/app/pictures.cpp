#include "ui/desktop/app/pictures.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <numeric>
#include <optional>
#include <string>
#include <utility>

#include "base/errors.h"
#include "forms/control.h"
#include "forms/picture_file.h"

namespace lectern::desktop {

namespace {

// Qt would load all installed decoders to find out.
const char* DecoderOf(forms::PictureFormat format) {
  switch (format) {
    case forms::PictureFormat::kJpeg:
      return "jpeg";
    case forms::PictureFormat::kPng:
      return "png";
    case forms::PictureFormat::kGif:
      return "gif";
    case forms::PictureFormat::kBmp:
      return "bmp";
    case forms::PictureFormat::kIcon:
      break;
  }
  return "ico";
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

// Reads a picture without copying its bytes.
class PictureReader {
 public:
  PictureReader(std::string_view bytes, const char* format)
      : held_(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()))),
        buffer_(&held_),
        reader_(&buffer_, format) {
    QImageReader::setAllocationLimit(kLargest);
    reader_.setAutoDetectImageFormat(false);
  }

  QImageReader* operator->() { return &reader_; }

 private:
  static constexpr int kLargest = 256;  // megabytes

  QByteArray held_;
  QBuffer buffer_;
  QImageReader reader_;
};

// A JPEG. Decoding it at a small size takes a fraction of the time and memory of all its pixels.
class JpegSource : public forms::PictureSource {
 public:
  // Returns null if the bytes are not a picture. Reading the first row is enough to tell. If the file has a
  // single scan, damage after that row only leaves gaps; if it has several, all of them are read for it. Then
  // they are read once, at a size that is large enough to be shown.
  static std::unique_ptr<const JpegSource> From(std::string_view bytes, bool has_many_scans) {
    const QSize size = PictureReader(bytes, kFormat)->size();
    if (size.isEmpty()) return nullptr;
    QImage small;
    if (has_many_scans) small = Read(bytes, size.boundedTo(size.scaled(kSmall, Qt::KeepAspectRatio)));
    if (small.isNull() && FirstRows(bytes, {size.width(), 1}).isNull()) return nullptr;
    return std::make_unique<const JpegSource>(bytes, size, std::move(small));
  }

  JpegSource(std::string_view bytes, const QSize& size, QImage small)
      : bytes_(bytes), size_(size), small_(std::move(small)) {}

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
    if (!small_.isNull()) return small_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return Read(bytes_, size);
  }

 private:
  static constexpr const char* kFormat = "jpeg";
  static constexpr QSize kSmall{1600, 1200};

  static QImage Read(std::string_view bytes, const QSize& size) {
    PictureReader reader(bytes, kFormat);
    reader->setScaledSize(size);
    return reader->read();
  }

  static QImage FirstRows(std::string_view bytes, const QSize& size) {
    PictureReader reader(bytes, kFormat);
    reader->setClipRect({{}, size});
    return reader->read();
  }

  std::string bytes_;
  QSize size_;
  QImage small_;
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
  const std::optional<forms::PictureFile> file = forms::ReadPictureFile(bytes);
  if (!file) throw none;

  if (file->format == forms::PictureFormat::kJpeg) {
    std::unique_ptr<const JpegSource> jpeg = JpegSource::From(bytes, file->has_many_scans);
    if (jpeg == nullptr) throw none;
    return forms::Picture(std::move(jpeg));
  }
  QImage image = PictureReader(file->Decodable(bytes), DecoderOf(file->format))->read();
  if (image.isNull()) throw none;
  return forms::Picture(BitmapOf(std::move(image)));
}

QPixmap Scaled(const forms::Picture& picture, const QSize& size) {
  if (!picture || size.isEmpty()) return {};
  if (const auto* const jpeg = dynamic_cast<const JpegSource*>(picture.Source())) {
    if (const QImage scaled = jpeg->ScaledTo(size); !scaled.isNull()) return QPixmap::fromImage(scaled);
  }
  const forms::Bitmap* const small = picture.Source() ? picture.Source()->Small() : nullptr;
  const forms::Bitmap& bitmap = small ? *small : *picture;
  if (bitmap.Empty()) return {};
  QImage image = ImageOf(bitmap);
  // Without opacity, Qt scales four times as fast.
  if (IsOpaque(bitmap)) image.reinterpretAsFormat(QImage::Format_RGBX8888);
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
