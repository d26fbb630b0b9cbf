#include "ui/headless/picture_decoder.h"

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <memory>

#include "core/run_time_error.h"

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

}  // namespace

forms::Picture DecodePicture(std::string_view bytes) {
  const std::unique_ptr<GdkPixbufLoader, Unreference> loader(gdk_pixbuf_loader_new());
  const auto* const data = reinterpret_cast<const guchar*>(bytes.data());
  const bool taken = gdk_pixbuf_loader_write(loader.get(), data, bytes.size(), nullptr) != FALSE;
  const bool closed = gdk_pixbuf_loader_close(loader.get(), nullptr) != FALSE;
  const GdkPixbuf* const pixbuf = gdk_pixbuf_loader_get_pixbuf(loader.get());
  if (!taken || !closed || pixbuf == nullptr) throw core::RunTimeError(core::ErrorNumber::kInvalidPicture);
  return FromPixbuf(pixbuf);
}

}  // namespace lectern::headless
