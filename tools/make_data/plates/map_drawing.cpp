#include "tools/make_data/plates/map_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "tools/make_data/plates/canvas.h"

namespace lectern::plates {

namespace {

void DrawAreas(cairo_t* context, const MapContent& map) {
  constexpr double kBand = 9;
  for (const Area& area : map.areas) {
    cairo_push_group(context);
    const auto trace = [&] {
      for (const Point& corner : area.outline) cairo_line_to(context, corner.x, corner.y);
      cairo_close_path(context);
    };
    trace();
    cairo_save(context);
    cairo_clip_preserve(context);
    SetColour(context, area.colour, 0.10);
    cairo_fill_preserve(context);
    SetColour(context, area.colour, 0.30);
    cairo_set_line_width(context, 2 * kBand);
    cairo_stroke(context);
    cairo_restore(context);
    trace();
    SetColour(context, area.colour, 0.75);
    cairo_set_line_width(context, 0.9);
    cairo_stroke(context);
    cairo_pattern_t* const tint = cairo_pop_group(context);
    cairo_set_source(context, tint);
    cairo_mask_surface(context, map.ground.LandMask(), 0, 0);
    cairo_pattern_destroy(tint);
  }
}

void DrawRoutes(cairo_t* context, const MapContent& map) {
  constexpr double kArrow = 11;
  for (const Route& route : map.routes) {
    // The line ends where the arrow begins.
    std::size_t neck = route.size() - 1;
    const Point tip = route.back();
    while (neck > 0 && std::hypot(route[neck].x - tip.x, route[neck].y - tip.y) < kArrow) --neck;
    const auto draw = [&](double width, Colour colour, double alpha) {
      for (std::size_t i = 0; i <= neck; ++i) cairo_line_to(context, route[i].x, route[i].y);
      SetColour(context, colour, alpha);
      cairo_set_line_width(context, width);
      cairo_stroke(context);
    };
    draw(4, kPaper, 0.7);
    constexpr std::array kDashes = {7.0, 3.5};
    cairo_set_dash(context, kDashes.data(), static_cast<int>(kDashes.size()), 0);
    draw(2, kRed, 1);
    cairo_set_dash(context, nullptr, 0, 0);
    const double angle = std::atan2(tip.y - route[neck].y, tip.x - route[neck].x);
    constexpr double kSpread = 0.36;
    cairo_move_to(context, tip.x, tip.y);
    for (const double turn : {-kSpread, kSpread}) {
      cairo_line_to(context, tip.x - kArrow * std::cos(angle + turn),
                    tip.y - kArrow * std::sin(angle + turn));
    }
    cairo_close_path(context);
    SetColour(context, kRed);
    cairo_fill(context);
  }
}

void DrawSigns(cairo_t* context, const MapContent& map) {
  constexpr double kTurn = 2 * std::numbers::pi;
  for (const Sign& sign : map.signs) {
    const double radius = MannerOf(sign.place->kind).sign_radius;
    cairo_new_path(context);
    if (sign.place->kind == PlaceKind::kMount) {
      cairo_move_to(context, sign.at.x - radius, sign.at.y + radius * 0.75);
      cairo_line_to(context, sign.at.x, sign.at.y - radius);
      cairo_line_to(context, sign.at.x + radius, sign.at.y + radius * 0.75);
      cairo_close_path(context);
    } else {
      cairo_arc(context, sign.at.x, sign.at.y, radius, 0, kTurn);
    }
    // An uncertain place has a hollow sign.
    SetColour(context, sign.place->certainty == Certainty::kUnsure ? kPaper : kInk);
    cairo_fill_preserve(context);
    SetColour(context, sign.place->certainty == Certainty::kUnsure ? kInk : kPaper);
    cairo_set_line_width(context, 1);
    cairo_stroke(context);
    if (sign.place->kind == PlaceKind::kCity) {
      cairo_arc(context, sign.at.x, sign.at.y, radius / 2, 0, kTurn);
      SetColour(context, kPaper);
      cairo_set_line_width(context, 0.8);
      cairo_stroke(context);
    }
  }
}

void DrawNames(cairo_t* context, const MapContent& map) {
  for (const Label& label : map.labels) {
    const bool is_wet = map.ground.ShareOfWater(label.box) > 0.5;
    DrawTextWithRim(context, label.text, label.letters, BaseLine(label), Align::kLeft, label.colour,
                    is_wet ? kSeaGround : kPaper);
  }
}

void DrawTitle(cairo_t* context, const MapContent& map) {
  FillBox(context, map.title_box, kPaper);
  StrokeBox(context, map.title_box, 1.6, kInk);
  StrokeBox(context, map.title_box.Grown(-3.5), 0.7, kInk);
  const double middle = (map.title_box.left + map.title_box.right) / 2;
  DrawText(context, map.title, kTitleLetters, {middle, map.title_box.top + 25}, Align::kMiddle, kInk);
  DrawText(context, map.passage, kPassageLetters, {middle, map.title_box.top + 42}, Align::kMiddle, kRed);
  const auto [miles, pixels] = ScaleBar(map.ground.Scale());
  const std::string text = std::to_string(miles) + " miles";
  constexpr Letters kSmall{.size = 10.5};
  const double wide = pixels + 5 + Measure(text, kSmall).width;
  const double left = middle - wide / 2;
  const double y = map.title_box.top + 56;
  constexpr int kFields = 4;
  for (int i = 0; i < kFields; ++i) {
    const Box field{left + pixels * i / kFields, y - 3.5, left + pixels * (i + 1) / kFields, y};
    FillBox(context, field, i % 2 == 0 ? kInk : kPaper);
    StrokeBox(context, field, 0.6, kInk);
  }
  DrawText(context, text, kSmall, {left + pixels + 5, y + 1.2}, Align::kLeft, kInk);
}

void DrawDegrees(cairo_t* context, const MapContent& map) {
  const Box outer{kFrameOuter, kFrameOuter, kWidth - kFrameOuter, kHeight - kFrameOuter};
  // The map ends at the frame.
  SetColour(context, kPaper);
  cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
  cairo_rectangle(context, 0, 0, kWidth, kHeight);
  cairo_rectangle(context, kInside.left, kInside.top, kInside.Width(), kInside.Height());
  cairo_fill(context);
  cairo_set_fill_rule(context, CAIRO_FILL_RULE_WINDING);
  constexpr std::array kSteps = {1.0 / 6, 0.25, 0.5, 1.0, 2.0, 5.0};
  constexpr double kLeast = 22;
  double step = kSteps.back();
  for (auto each = kSteps.rbegin(); each != kSteps.rend(); ++each) {
    if (*each * map.ground.Scale().PixelsOfADegree() >= kLeast) step = *each;
  }
  constexpr double kGap = 2;
  const Place from = map.ground.Scale().PlaceAt({outer.left, outer.bottom});
  const Place to = map.ground.Scale().PlaceAt({outer.right, outer.top});
  for (auto i = static_cast<int>(std::floor(from.longitude / step)); i * step < to.longitude; ++i) {
    if (i % 2 == 0) continue;
    const double left = std::max(kInside.left, map.ground.Scale().At({i * step, 0}).x);
    const double right = std::min(kInside.right, map.ground.Scale().At({(i + 1) * step, 0}).x);
    if (right <= left) continue;
    FillBox(context, {left, outer.top + kGap, right, kInside.top - kGap}, kInk);
    FillBox(context, {left, kInside.bottom + kGap, right, outer.bottom - kGap}, kInk);
  }
  for (auto i = static_cast<int>(std::floor(from.latitude / step)); i * step < to.latitude; ++i) {
    if (i % 2 == 0) continue;
    const double top = std::max(kInside.top, map.ground.Scale().At({0, (i + 1) * step}).y);
    const double bottom = std::min(kInside.bottom, map.ground.Scale().At({0, i * step}).y);
    if (bottom <= top) continue;
    FillBox(context, {outer.left + kGap, top, kInside.left - kGap, bottom}, kInk);
    FillBox(context, {kInside.right + kGap, top, outer.right - kGap, bottom}, kInk);
  }
}

}  // namespace

std::string DrawnMap(const MapContent& map) {
  const Canvas canvas;
  cairo_t* const context = canvas.Context();
  cairo_set_source_surface(context, map.ground.Picture(), 0, 0);
  cairo_paint(context);
  DrawAreas(context, map);
  DrawRoutes(context, map);
  DrawSigns(context, map);
  DrawNames(context, map);
  DrawTitle(context, map);
  DrawDegrees(context, map);
  DrawFrame(context);
  return canvas.AsJpeg();
}

Manner MannerOf(PlaceKind kind) {
  switch (kind) {
    case PlaceKind::kTown:
      return {{.size = 13.5}, kInk, 2.6};
    case PlaceKind::kCity:
      return {{.size = 15.5}, kInk, 3.6};
    case PlaceKind::kMount:
      return {{.size = 13.5, .is_italic = true}, kInk, 4.2};
    case PlaceKind::kLand:
      return {{.size = 16, .has_small_capitals = true, .spacing = 2.2}, kInk, 0};
    case PlaceKind::kSmallLand:
      return {{.size = 14, .has_small_capitals = true, .spacing = 1}, kInk, 0};
    case PlaceKind::kPeople:
      return {{.size = 14, .is_italic = true, .spacing = 0.8}, kFaintInk, 0};
    case PlaceKind::kSea:
      return {{.size = 16, .is_italic = true, .spacing = 0.6}, kSeaName, 0};
    case PlaceKind::kRiver:
      return {{.size = 13, .is_italic = true}, kSeaName, 0};
  }
  return {};
}

std::pair<int, double> ScaleBar(const Projection& projection) {
  constexpr double kMilesOfADegree = 69;
  const double pixels_of_a_mile = projection.PixelsOfADegree() / kMilesOfADegree;
  constexpr std::array kMiles = {5, 10, 20, 25, 50, 100, 200, 300, 500};
  constexpr double kMost = 100;
  int miles = kMiles[0];
  for (const int each : kMiles) {
    if (each * pixels_of_a_mile <= kMost) miles = each;
  }
  return {miles, miles * pixels_of_a_mile};
}

}  // namespace lectern::plates
