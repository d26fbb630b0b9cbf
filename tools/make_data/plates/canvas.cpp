#include "tools/make_data/plates/canvas.h"

#include <algorithm>
#include <cmath>
#include <gdk-pixbuf/gdk-pixbuf.h>

#include "tools/make_data/plates/lettering.h"
#include "tools/make_data/texts.h"

namespace lectern::plates {

Canvas::Canvas(Colour ground, int width, int height)
    : surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height)),
      context_(cairo_create(surface_.get())) {
  SetColour(context_.get(), ground);
  cairo_paint(context_.get());
}

unsigned Canvas::At(int x, int y) const {
  cairo_surface_flush(surface_.get());
  const unsigned char* const row = cairo_image_surface_get_data(surface_.get()) +
                                   std::ptrdiff_t{y} * cairo_image_surface_get_stride(surface_.get());
  return reinterpret_cast<const unsigned*>(row)[x] & 0xFFFFFFU;
}

std::string Canvas::AsJpeg() const {
  const std::unique_ptr<GdkPixbuf, decltype(&g_object_unref)> pixbuf(
      gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, Width(), Height()), &g_object_unref);
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
  if (gdk_pixbuf_save_to_buffer(pixbuf.get(), &bytes, &size, "jpeg", nullptr, "quality", "93", nullptr) ==
      FALSE) {
    throw make_data::Obstacle(
        "Pictures cannot be written as JPEG here. Install libgdk-pixbuf-2.0-0 and run this again.");
  }
  std::string jpeg(bytes, size);
  g_free(bytes);
  return jpeg;
}

void SetColour(cairo_t* context, Colour colour, double alpha) {
  cairo_set_source_rgba(context, colour.red, colour.green, colour.blue, alpha);
}

void StrokeBox(cairo_t* context, const Box& box, double width, Colour colour) {
  SetColour(context, colour);
  cairo_set_line_width(context, width);
  cairo_rectangle(context, box.left, box.top, box.Width(), box.Height());
  cairo_stroke(context);
}

void FillBox(cairo_t* context, const Box& box, Colour colour) {
  SetColour(context, colour);
  cairo_rectangle(context, box.left, box.top, box.Width(), box.Height());
  cairo_fill(context);
}

void Line(cairo_t* context, Point from, Point to, double width, Colour colour) {
  SetColour(context, colour);
  cairo_set_line_width(context, width);
  cairo_move_to(context, from.x, from.y);
  cairo_line_to(context, to.x, to.y);
  cairo_stroke(context);
}

void FillLozenge(cairo_t* context, Point centre, double radius, Colour colour) {
  SetColour(context, colour);
  cairo_move_to(context, centre.x - radius, centre.y);
  cairo_line_to(context, centre.x, centre.y - radius);
  cairo_line_to(context, centre.x + radius, centre.y);
  cairo_line_to(context, centre.x, centre.y + radius);
  cairo_close_path(context);
  cairo_fill(context);
}

void SmoothPath(cairo_t* context, std::span<const Point> points) {
  if (points.empty()) return;
  const auto at = [&](std::ptrdiff_t i) {
    const auto last = static_cast<std::ptrdiff_t>(points.size()) - 1;
    return points[static_cast<std::size_t>(i < 0 ? 0 : i > last ? last : i)];
  };
  const auto length = [](Point from, Point to) { return std::hypot(to.x - from.x, to.y - from.y); };
  constexpr double kPull = 0.33;
  cairo_move_to(context, points[0].x, points[0].y);
  for (std::ptrdiff_t i = 0; i + 1 < static_cast<std::ptrdiff_t>(points.size()); ++i) {
    const Point before = at(i - 1), from = at(i), to = at(i + 1), behind = at(i + 2);
    const double pull_from = kPull * length(from, to) / std::max(1.0, length(before, to));
    const double pull_to = kPull * length(from, to) / std::max(1.0, length(from, behind));
    cairo_curve_to(context, from.x + (to.x - before.x) * pull_from, from.y + (to.y - before.y) * pull_from,
                   to.x - (behind.x - from.x) * pull_to, to.y - (behind.y - from.y) * pull_to, to.x, to.y);
  }
}

void DrawFrame(cairo_t* context) {
  const Box outer{kFrameOuter, kFrameOuter, kWidth - kFrameOuter, kHeight - kFrameOuter};
  StrokeBox(context, outer, 2, kInk);
  StrokeBox(context, kInside, 0.8, kInk);
  const double middle = (kFrameOuter + kFrameInner) / 2;
  for (const Point corner : {Point{middle, middle}, Point{kWidth - middle, middle},
                             Point{middle, kHeight - middle}, Point{kWidth - middle, kHeight - middle}}) {
    constexpr double kHalf = (kFrameInner - kFrameOuter) / 2;
    const Box square{corner.x - kHalf, corner.y - kHalf, corner.x + kHalf, corner.y + kHalf};
    FillBox(context, square, kPaper);
    StrokeBox(context, square, 0.8, kInk);
    FillLozenge(context, corner, kHalf, kRed);
  }
}

Box DrawHeading(cairo_t* context, const std::string& title, const std::string& passage) {
  constexpr double kMiddle = kWidth / 2.0;
  DrawText(context, title, {.size = 27}, {kMiddle, 50}, Align::kMiddle, kInk);
  constexpr double kRule = 60, kRuleY = 63;
  Line(context, {kMiddle - kRule, kRuleY}, {kMiddle - 8, kRuleY}, 0.8, kGold);
  Line(context, {kMiddle + 8, kRuleY}, {kMiddle + kRule, kRuleY}, 0.8, kGold);
  FillLozenge(context, {kMiddle, kRuleY}, 3.5, kRed);
  Letters letters{.size = 14, .is_italic = true};
  constexpr double kMost = 560;
  while (Measure(passage, letters).width > kMost) letters.size -= 0.5;
  DrawText(context, passage, letters, {kMiddle, kHeight - 25}, Align::kMiddle, kRed);
  return {kInside.left + 14, 74, kInside.right - 14, kHeight - 44};
}

}  // namespace lectern::plates
