#include <algorithm>
#include <cstdint>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <memory>
#include <optional>
#include <string>

#include "base/errors.h"
#include "forms/picture.h"
#include "forms/picture_file.h"
#include "ui/headless/headless_platform.h"

namespace lectern::headless {

namespace {

struct Unreference {
  void operator()(gpointer object) const { g_object_unref(object); }
};

forms::Bitmap BitmapOf(const GdkPixbuf& pixbuf) {
  const int width = gdk_pixbuf_get_width(&pixbuf);
  const int height = gdk_pixbuf_get_height(&pixbuf);
  const int channels = gdk_pixbuf_get_n_channels(&pixbuf);
  const auto stride = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(&pixbuf));
  const guint8* const pixels = gdk_pixbuf_read_pixels(&pixbuf);
  forms::Bitmap bitmap(width, height);
  for (int y = 0; y < height; ++y) {
    const guint8* from = pixels + static_cast<std::size_t>(y) * stride;
    forms::Pixel* const to = bitmap.Row(y);
    for (int x = 0; x < width; ++x, from += channels) {
      const forms::Pixel alpha = channels == 4 ? from[3] : 255U;
      to[x] = from[0] | (static_cast<forms::Pixel>(from[1]) << 8) |
              (static_cast<forms::Pixel>(from[2]) << 16) | (alpha << 24);
    }
  }
  return bitmap;
}

using Pixbuf = std::unique_ptr<GdkPixbuf, Unreference>;

struct Size {
  gint width = 0;
  gint height = 0;
  gint divisor = 1;  // how many times as small it is decoded
};

void NoteSize(GdkPixbufLoader* loader, gint width, gint height, gpointer noted) {
  Size& size = *static_cast<Size*>(noted);
  size.width = width;
  size.height = height;
  if (size.divisor > 1) {
    gdk_pixbuf_loader_set_size(loader, std::max(width / size.divisor, 1), std::max(height / size.divisor, 1));
  }
}

Pixbuf Decode(std::string_view bytes, Size& size) {
  const base::RunTimeError none(base::ErrorNumber::kInvalidPicture);
  const std::unique_ptr<GdkPixbufLoader, Unreference> loader(gdk_pixbuf_loader_new());
  g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(NoteSize), &size);
  bool taken = true;
  while (taken && !bytes.empty()) {
    constexpr std::size_t kPiece = 1 << 16;
    const std::string_view piece = bytes.substr(0, kPiece);
    const auto* const data = reinterpret_cast<const guchar*>(piece.data());
    taken = gdk_pixbuf_loader_write(loader.get(), data, piece.size(), nullptr) != FALSE;
    bytes.remove_prefix(piece.size());
  }
  const bool closed = gdk_pixbuf_loader_close(loader.get(), nullptr) != FALSE;
  GdkPixbuf* const pixbuf = gdk_pixbuf_loader_get_pixbuf(loader.get());
  if (!taken || !closed || pixbuf == nullptr) throw none;
  return Pixbuf(GDK_PIXBUF(g_object_ref(pixbuf)));
}

// A large JPEG, which is checked in a small size. That takes a fraction of the memory.
class JpegSource : public forms::PictureSource {
 public:
  explicit JpegSource(std::string_view bytes) : bytes_(bytes) {
    constexpr gint kDivisor = 8;
    size_.divisor = kDivisor;
    Decode(bytes_, size_);
  }

  int Width() const override { return size_.width; }
  int Height() const override { return size_.height; }
  forms::Bitmap Pixels() const override {
    Size size;
    return BitmapOf(*Decode(bytes_, size));
  }

 private:
  std::string bytes_;
  Size size_;
};

}  // namespace

forms::Picture DecodePicture(std::string_view bytes) {
  constexpr std::int64_t kLargeJpeg = 4 << 20;  // pixels
  const std::optional<forms::PictureFile> file = forms::ReadPictureFile(bytes);
  if (!file) throw base::RunTimeError(base::ErrorNumber::kInvalidPicture);
  if (file->format == forms::PictureFormat::kJpeg && file->pixels > kLargeJpeg) {
    return forms::Picture(std::make_unique<const JpegSource>(bytes));
  }
  Size size;
  return forms::Picture(BitmapOf(*Decode(file->Decodable(bytes), size)));
}

}  // namespace lectern::headless
