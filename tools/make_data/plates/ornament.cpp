#include "tools/make_data/plates/ornament.h"

#include <cmath>
#include <numbers>

#include "tools/make_data/plates/canvas.h"
#include "tools/make_data/plates/lettering.h"

namespace lectern::plates {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;

// A leaf that grows from a point in a direction and bends.
void FillLeaf(cairo_t* context, Point from, double direction, double length, double bend) {
  const auto away = [&](double along, double aside) {
    const double x = from.x + length * (along * std::cos(direction) - aside * std::sin(direction));
    const double y = from.y + length * (along * std::sin(direction) + aside * std::cos(direction));
    return Point{x, y};
  };
  const Point tip = away(1, bend);
  const Point a = away(0.35, 0.42 + bend * 0.3), b = away(0.8, 0.28 + bend);
  const Point c = away(0.85, -0.12 + bend), d = away(0.4, -0.24 + bend * 0.3);
  cairo_move_to(context, from.x, from.y);
  cairo_curve_to(context, a.x, a.y, b.x, b.y, tip.x, tip.y);
  cairo_curve_to(context, c.x, c.y, d.x, d.y, from.x, from.y);
  cairo_fill(context);
}

// A tendril that rolls up around `middle`, with leaves on its outer side. It begins at `radius` in the
// direction of the angle. `handed` is 1 or -1, the direction in which it turns.
void DrawScroll(cairo_t* context, Point eye, double radius, double angle, double handed, double thickness) {
  constexpr double kTurns = 1.65;
  constexpr int kSteps = 60;
  const auto at = [&](double share) {
    const double r = radius * std::pow(1 - share, 1.35) + radius * 0.05;
    const double a = angle + handed * share * kTurns * kTurn;
    return Point{eye.x + r * std::cos(a), eye.y + r * std::sin(a)};
  };
  for (int i = 0; i <= kSteps; ++i) {
    const Point point = at(static_cast<double>(i) / kSteps);
    cairo_line_to(context, point.x, point.y);
  }
  cairo_set_line_width(context, thickness);
  cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
  cairo_stroke(context);
  cairo_arc(context, eye.x, eye.y, thickness * 1.5, 0, kTurn);
  cairo_fill(context);
  for (const double share : {0.10, 0.24, 0.38, 0.52}) {
    const Point from = at(share);
    const Point behind = at(share + 0.02);
    const double along = std::atan2(behind.y - from.y, behind.x - from.x);
    const double size = radius * 0.42 * (1 - share * 0.8);
    FillLeaf(context, from, along - handed * 0.9, size, -handed * 0.15);
    if (share > 0.2) FillLeaf(context, from, along + handed * 0.8, size * 0.55, handed * 0.15);
  }
}

}  // namespace

void DrawInitial(cairo_t* context, const std::string& letter, const Box& square, Colour ground) {
  const double side = square.Width();
  FillBox(context, square, ground);
  cairo_save(context);
  const Box inner = square.Grown(-side * 0.055);
  cairo_rectangle(context, inner.left, inner.top, inner.Width(), inner.Height());
  cairo_clip(context);
  const Point middle{(square.left + square.right) / 2, (square.top + square.bottom) / 2};
  const double off = side * 0.235;
  SetColour(context, kGold);
  for (const double right : {-1.0, 1.0}) {
    for (const double down : {-1.0, 1.0}) {
      const double angle = std::atan2(-down, -right);
      DrawScroll(context, {middle.x + right * off, middle.y + down * off}, side * 0.23, angle, right * down,
                 side * 0.014);
    }
  }
  cairo_restore(context);
  StrokeBox(context, inner, side * 0.014, kGold);
  const double size = side * 1.06;
  const Letters letters{.size = size};
  const Point base{middle.x, middle.y + Measure(letter, letters).ascent / 2};
  // A rim in the colour of the ground separates the scrolls from the letter.
  DrawTextWithRim(context, letter, letters, base, Align::kMiddle, kPaper, ground, side * 0.07);
}

void DrawTailpiece(cairo_t* context, Point middle, double width, Colour colour) {
  const double radius = width * 0.13;
  SetColour(context, colour);
  for (const double right : {-1.0, 1.0}) {
    const Point eye{middle.x + right * width * 0.24, middle.y};
    DrawScroll(context, eye, radius, right > 0 ? std::numbers::pi : 0, right, width * 0.007);
    cairo_set_line_width(context, width * 0.007);
    const double start = middle.x + right * width * 0.03;
    cairo_move_to(context, start, middle.y);
    cairo_line_to(context, eye.x - right * radius * 1.05, middle.y);
    cairo_stroke(context);
    const double far = middle.x + right * width * 0.5;
    cairo_move_to(context, eye.x, middle.y + radius * 0.75);
    cairo_curve_to(context, eye.x + right * radius, middle.y + radius * 1.1, far - right * radius, middle.y,
                   far, middle.y);
    cairo_stroke(context);
  }
  FillLozenge(context, middle, width * 0.022, kRed);
}

}  // namespace lectern::plates
