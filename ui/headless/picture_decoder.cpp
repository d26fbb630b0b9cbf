#include <cstdint>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <memory>

#include "base/errors.h"
#include "forms/picture.h"
#include "ui/headless/headless_platform.h"

namespace lectern::headless {

namespace {

struct Unreference {
  void operator()(gpointer object) const { g_object_unref(object); }
};

forms::Picture FromPixbuf(const GdkPixbuf* pixbuf) {
  const int width = gdk_pixbuf_get_width(pixbuf);
  const int height = gdk_pixbuf_get_height(pixbuf);
  const int channels = gdk_pixbuf_get_n_channels(pixbuf);
  const auto stride = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(pixbuf));
  const guint8* const pixels = gdk_pixbuf_read_pixels(pixbuf);
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
  return forms::Picture(std::move(bitmap));
}

// The same limit as on the desktop: a gigabyte of pixels. A header that promises more is refused before any
// memory is asked for, as a picture of no size is not decoded.
void NoteSize(GdkPixbufLoader* loader, gint width, gint height, gpointer too_large) {
  constexpr std::int64_t kMostPixels = std::int64_t{1024} * 1024 * 1024 / sizeof(forms::Pixel);
  if (std::int64_t{width} * height <= kMostPixels) return;
  *static_cast<bool*>(too_large) = true;
  gdk_pixbuf_loader_set_size(loader, 0, 0);
}

}  // namespace

forms::Picture DecodePicture(std::string_view bytes) {
  const base::RunTimeError none(base::ErrorNumber::kInvalidPicture);
  const std::unique_ptr<GdkPixbufLoader, Unreference> loader(gdk_pixbuf_loader_new());
  bool too_large = false;
  g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(NoteSize), &too_large);
  bool taken = true;
  while (taken && !too_large && !bytes.empty()) {
    constexpr std::size_t kPiece = 1 << 16;
    const std::string_view piece = bytes.substr(0, kPiece);
    const auto* const data = reinterpret_cast<const guchar*>(piece.data());
    taken = gdk_pixbuf_loader_write(loader.get(), data, piece.size(), nullptr) != FALSE;
    bytes.remove_prefix(piece.size());
  }
  const bool closed = gdk_pixbuf_loader_close(loader.get(), nullptr) != FALSE;
  const GdkPixbuf* const pixbuf = gdk_pixbuf_loader_get_pixbuf(loader.get());
  if (!taken || !closed || too_large || pixbuf == nullptr) throw none;
  return FromPixbuf(pixbuf);
}

}  // namespace lectern::headless
