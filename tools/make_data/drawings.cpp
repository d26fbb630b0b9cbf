#include "tools/make_data/drawings.h"

#include <algorithm>
#include <cairo.h>
#include <fstream>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <iterator>
#include <librsvg/rsvg.h>
#include <memory>
#include <numbers>
#include <string_view>

#include "tools/make_data/texts.h"

namespace lectern::make_data {

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 480;
constexpr double kMargin = 24;

struct Release {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(RsvgHandle* drawing) const { g_object_unref(drawing); }
  void operator()(GdkPixbuf* pixbuf) const { g_object_unref(pixbuf); }
};
template <class T>
using Owned = std::unique_ptr<T, Release>;

// A white page to draw on.
class Page {
 public:
  Page(int width, int height)
      : surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height)),
        context_(cairo_create(surface_.get())) {
    cairo_set_source_rgb(context_.get(), 1, 1, 1);
    cairo_paint(context_.get());
  }

  cairo_t* Context() const { return context_.get(); }
  int Width() const { return cairo_image_surface_get_width(surface_.get()); }
  int Height() const { return cairo_image_surface_get_height(surface_.get()); }

  // Red, green and blue of a pixel, as 0xRRGGBB.
  unsigned At(int x, int y) const {
    cairo_surface_flush(surface_.get());
    const unsigned char* const row = cairo_image_surface_get_data(surface_.get()) +
                                     std::ptrdiff_t{y} * cairo_image_surface_get_stride(surface_.get());
    return reinterpret_cast<const unsigned*>(row)[x] & 0xFFFFFFU;
  }

  std::string AsJpeg() const;

 private:
  Owned<cairo_surface_t> surface_;
  Owned<cairo_t> context_;
};

std::string Page::AsJpeg() const {
  const Owned<GdkPixbuf> pixbuf(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, Width(), Height()));
  guchar* const pixels = gdk_pixbuf_get_pixels(pixbuf.get());
  const int stride = gdk_pixbuf_get_rowstride(pixbuf.get());
  for (int y = 0; y < Height(); ++y) {
    guchar* to = pixels + std::ptrdiff_t{y} * stride;
    for (int x = 0; x < Width(); ++x) {
      const unsigned pixel = At(x, y);
      *to++ = static_cast<guchar>(pixel >> 16);
      *to++ = static_cast<guchar>((pixel >> 8) & 0xFF);
      *to++ = static_cast<guchar>(pixel & 0xFF);
    }
  }
  gchar* bytes = nullptr;
  gsize size = 0;
  if (gdk_pixbuf_save_to_buffer(pixbuf.get(), &bytes, &size, "jpeg", nullptr, "quality", "90", nullptr) ==
      FALSE) {
    throw Obstacle(
        "Pictures cannot be written as JPEG here. Install libgdk-pixbuf-2.0-0 and run this again.");
  }
  std::string jpeg(bytes, size);
  g_free(bytes);
  return jpeg;
}

void Render(RsvgHandle* drawing, const Page& page, const RsvgRectangle& viewport, const std::string& path) {
  if (rsvg_handle_render_document(drawing, page.Context(), &viewport, nullptr) == FALSE) {
    throw Obstacle("The drawing " + path + " cannot be drawn.");
  }
}

// The part of a page that is not white; empty where nothing is drawn.
struct Extent {
  int left, top, right, bottom;
};

Extent DrawnPart(const Page& page) {
  constexpr unsigned kWhite = 0xFFFFFF;
  Extent drawn{page.Width(), page.Height(), 0, 0};
  for (int y = 0; y < page.Height(); ++y) {
    for (int x = 0; x < page.Width(); ++x) {
      if (page.At(x, y) == kWhite) continue;
      drawn.left = std::min(drawn.left, x);
      drawn.top = std::min(drawn.top, y);
      drawn.right = std::max(drawn.right, x + 1);
      drawn.bottom = std::max(drawn.bottom, y + 1);
    }
  }
  return drawn;
}

// In strokes of the pen, so that the card is the same whatever fonts there are.
void DrawTheWordEnd(cairo_t* context) {
  constexpr double kTurn = 2 * std::numbers::pi;
  constexpr double kBase = 290, kMiddle = 240, kTop = 190, kAscender = 116, kRadius = 50, kArch = 44;
  cairo_set_line_width(context, 15);
  cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
  constexpr double kE = 190;
  cairo_move_to(context, kE - kRadius, kMiddle);
  cairo_line_to(context, kE + kRadius, kMiddle);
  cairo_arc_negative(context, kE, kMiddle, kRadius, 0, -0.87 * kTurn);
  constexpr double kN = 276;
  cairo_move_to(context, kN, kTop);
  cairo_line_to(context, kN, kBase);
  cairo_move_to(context, kN, kTop + kArch);
  cairo_arc(context, kN + kArch, kTop + kArch, kArch, kTurn / 2, kTurn);
  cairo_line_to(context, kN + 2 * kArch, kBase);
  constexpr double kD = 450;
  cairo_new_sub_path(context);
  cairo_arc(context, kD, kMiddle, kRadius, 0, kTurn);
  cairo_move_to(context, kD + kRadius, kAscender);
  cairo_line_to(context, kD + kRadius, kBase);
  cairo_stroke(context);
}

std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

std::string DrawnAsJpeg(const std::string& path) {
  const Owned<RsvgHandle> drawing(rsvg_handle_new_from_file(path.c_str(), nullptr));
  if (!drawing) throw Obstacle("The drawing " + path + " cannot be read.");

  // Drawn once to see how much of its page it fills, twice as large so that its edge is found exactly.
  constexpr int kFiner = 2;
  const Page trial(kFiner * kWidth, kFiner * kHeight);
  Render(drawing.get(), trial, {0, 0, kFiner * kWidth, kFiner * kHeight}, path);
  const Extent drawn = DrawnPart(trial);
  if (drawn.right <= drawn.left) throw Obstacle("The drawing " + path + " is empty.");

  const double width = static_cast<double>(drawn.right - drawn.left) / kFiner;
  const double height = static_cast<double>(drawn.bottom - drawn.top) / kFiner;
  const double scale = std::min((kWidth - 2 * kMargin) / width, (kHeight - 2 * kMargin) / height);
  const Page page(kWidth, kHeight);
  Render(drawing.get(), page,
         {(kWidth - width * scale) / 2 - static_cast<double>(drawn.left) / kFiner * scale,
          (kHeight - height * scale) / 2 - static_cast<double>(drawn.top) / kFiner * scale, kWidth * scale,
          kHeight * scale},
         path);
  return page.AsJpeg();
}

std::string ArtistOf(const std::string& path) {
  const std::string text = FileText(path);
  std::string_view creator = text;
  creator.remove_prefix(std::min(creator.find("<dc:creator"), creator.size()));
  creator = creator.substr(0, creator.find("</dc:creator>"));
  const std::string_view opening = "<dc:title>";
  const std::size_t start = creator.find(opening);
  if (start == std::string_view::npos) return {};
  creator.remove_prefix(start + opening.size());
  std::string artist = PlainWords(creator.substr(0, creator.find('<')));
  // An address behind the name is nobody's business, and a field cannot hold a quote.
  if (const std::size_t address = artist.find(" ("); address != std::string::npos) artist.resize(address);
  std::replace(artist.begin(), artist.end(), '"', '\'');
  return artist == "Anonymous" ? "" : artist;
}

std::string EndCard() {
  const Page page(kWidth, kHeight);
  cairo_t* const context = page.Context();
  cairo_set_source_rgb(context, 0.957, 0.949, 0.929);
  cairo_paint(context);
  constexpr double kFrame = 40;
  cairo_set_source_rgb(context, 0.78, 0.75, 0.69);
  cairo_set_line_width(context, 3);
  cairo_rectangle(context, kFrame, kFrame, kWidth - 2 * kFrame, kHeight - 2 * kFrame);
  cairo_stroke(context);
  cairo_set_source_rgb(context, 0.45, 0.42, 0.37);
  DrawTheWordEnd(context);
  return page.AsJpeg();
}

std::string BlankPage() {
  constexpr int kPageWidth = 533;
  constexpr int kPageHeight = 363;
  return Page(kPageWidth, kPageHeight).AsJpeg();
}

}  // namespace lectern::make_data
