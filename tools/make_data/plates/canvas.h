// The page on which a plate is drawn, and the basic shapes of the plates.
#pragma once

#include <cairo.h>
#include <memory>
#include <span>
#include <string>

#include "tools/make_data/plates/style.h"

namespace lectern::plates {

struct Release {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};
template <class T>
using Owned = std::unique_ptr<T, Release>;

class Canvas {
 public:
  explicit Canvas(Colour ground = kPaper, int width = kWidth, int height = kHeight);

  cairo_t* Context() const { return context_.get(); }
  cairo_surface_t* Surface() const { return surface_.get(); }
  int Width() const { return cairo_image_surface_get_width(surface_.get()); }
  int Height() const { return cairo_image_surface_get_height(surface_.get()); }

  // Red, green and blue of a pixel, as 0xRRGGBB.
  unsigned At(int x, int y) const;

  std::string AsJpeg() const;

 private:
  Owned<cairo_surface_t> surface_;
  Owned<cairo_t> context_;
};

void SetColour(cairo_t* context, Colour colour, double alpha = 1);
void StrokeBox(cairo_t* context, const Box& box, double width, Colour colour);
void FillBox(cairo_t* context, const Box& box, Colour colour);
void Line(cairo_t* context, Point from, Point to, double width, Colour colour);
void FillLozenge(cairo_t* context, Point centre, double radius, Colour colour);

// A path through all the points, without corners.
void SmoothPath(cairo_t* context, std::span<const Point> points);

// The two rules around every plate, with their corners.
void DrawFrame(cairo_t* context);

// Draws a plate's heading at the top, with a rule below it, and its passage at the foot. Returns the space
// between them.
Box DrawHeading(cairo_t* context, const std::string& title, const std::string& passage);

}  // namespace lectern::plates
