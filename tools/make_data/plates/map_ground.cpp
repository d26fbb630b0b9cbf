#include "tools/make_data/plates/map_ground.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <mutex>
#include <sstream>

#include "tools/make_data/plates/distances.h"
#include "tools/make_data/texts.h"

namespace lectern::plates {

namespace {

constexpr int kFiner = 2;  // the water lines are found on a grid twice as fine as the picture

void Trace(cairo_t* context, const Projection& projection, const Outline& outline) {
  cairo_new_sub_path(context);
  for (const Place& place : outline) {
    const Point point = projection.At(place);
    cairo_line_to(context, point.x, point.y);
  }
}

bool IsSeen(const Projection& projection, Place south_west, double degrees) {
  const Point bottom_left = projection.At(south_west);
  const Point top_right = projection.At({south_west.longitude + degrees, south_west.latitude + degrees});
  constexpr double kBeyond = 40;
  return Box{0, 0, kWidth, kHeight}.Grown(kBeyond).Meets(
      {bottom_left.x, top_right.y, top_right.x, bottom_left.y});
}

Place Middle(const Outline& outline) {
  Place middle{0, 0};
  for (const Place& place : outline) {
    middle.longitude += place.longitude / static_cast<double>(outline.size());
    middle.latitude += place.latitude / static_cast<double>(outline.size());
  }
  return middle;
}

bool Holds(const Outline& outline, Place place) {
  bool holds = false;
  for (std::size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
    const Place &a = outline[i], &b = outline[j];
    if ((a.latitude > place.latitude) != (b.latitude > place.latitude) &&
        place.longitude <
            (b.longitude - a.longitude) * (place.latitude - a.latitude) / (b.latitude - a.latitude) +
                a.longitude) {
      holds = !holds;
    }
  }
  return holds;
}

// Whether a pond or rock is too small to be recognised.
bool IsTiny(const Outline& outline, int level, const Projection& projection) {
  const auto [west, east] =
      std::minmax_element(outline.begin(), outline.end(),
                          [](const Place& a, const Place& b) { return a.longitude < b.longitude; });
  const double least = level == Shore::kCoast ? 1.5 : 7;
  return projection.At(*east).x - projection.At(*west).x < least;
}

void FillClosed(cairo_t* context, const Projection& projection, const std::vector<const Square*>& squares,
                Shore::Level level) {
  for (const Square* square : squares) {
    for (const Outline& outline : ClosedOutlines(*square, level)) {
      if (IsTiny(outline, level, projection)) continue;
      Trace(context, projection, outline);
      cairo_close_path(context);
    }
  }
  cairo_fill(context);
}

// Land is opaque on the mask, water is clear.
Owned<cairo_surface_t> DrawLandMask(const std::vector<const Square*>& squares, const WaterChanges& changes,
                                    const Projection& projection) {
  Owned<cairo_surface_t> mask(cairo_image_surface_create(CAIRO_FORMAT_A8, kFiner * kWidth, kFiner * kHeight));
  const Owned<cairo_t> context(cairo_create(mask.get()));
  cairo_scale(context.get(), kFiner, kFiner);
  constexpr std::array kLevels = {Shore::kCoast, Shore::kLake, Shore::kIsland, Shore::kPond};
  for (const Shore::Level level : kLevels) {
    const bool is_water = level == Shore::kLake || level == Shore::kPond;
    cairo_set_operator(context.get(), is_water ? CAIRO_OPERATOR_CLEAR : CAIRO_OPERATOR_OVER);
    FillClosed(context.get(), projection, squares, level);
  }
  const auto put = [&](const std::vector<Outline>& outlines, cairo_operator_t how) {
    cairo_set_operator(context.get(), how);
    for (const Outline& outline : outlines) {
      Trace(context.get(), projection, outline);
      cairo_close_path(context.get());
      cairo_fill(context.get());
    }
  };
  put(changes.Land(), CAIRO_OPERATOR_OVER);
  put(changes.Lakes(), CAIRO_OPERATOR_CLEAR);
  cairo_surface_flush(mask.get());
  return mask;
}

// The mask at the picture's own size.
Owned<cairo_surface_t> Reduced(cairo_surface_t* mask) {
  Owned<cairo_surface_t> reduced(cairo_image_surface_create(CAIRO_FORMAT_A8, kWidth, kHeight));
  const Owned<cairo_t> context(cairo_create(reduced.get()));
  cairo_scale(context.get(), 1.0 / kFiner, 1.0 / kFiner);
  cairo_set_source_surface(context.get(), mask, 0, 0);
  cairo_pattern_set_filter(cairo_get_source(context.get()), CAIRO_FILTER_BILINEAR);
  cairo_paint(context.get());
  cairo_surface_flush(reduced.get());
  return reduced;
}

// How dark an engraver's water line is at a distance from the shore, from 0 to 1.
double WaterLineAt(double distance) {
  double line = 2.6;
  double step = 2.6;
  double strength = 0.85;
  while (line < 40) {
    const double off = std::abs(distance - line);
    if (off < 1) return strength * (1 - off);
    line += step;
    step *= 1.17;
    strength *= 0.86;
  }
  return 0;
}

unsigned Mixed(Colour ground, Colour over, double share) {
  const auto channel = [&](double a, double b) {
    return static_cast<unsigned>(std::lround(255 * (a + (b - a) * share)));
  };
  return channel(ground.red, over.red) << 16 | channel(ground.green, over.green) << 8 |
         channel(ground.blue, over.blue);
}

// Draws sea, land and water lines pixel by pixel.
void PaintLandAndSea(const Canvas& picture, cairo_surface_t* mask) {
  const std::vector<float> distances = DistancesToLand(mask);
  constexpr int kFineWidth = kFiner * kWidth;
  const int mask_stride = cairo_image_surface_get_stride(mask);
  const unsigned char* const land = cairo_image_surface_get_data(mask);
  auto* const pixels = reinterpret_cast<unsigned*>(cairo_image_surface_get_data(picture.Surface()));
  const int stride = cairo_image_surface_get_stride(picture.Surface()) / 4;
  std::vector<double> darkness(4096);
  for (std::size_t i = 0; i < darkness.size(); ++i) {
    darkness[i] = WaterLineAt(static_cast<double>(i) / 64);
  }
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      double line = 0;
      double dry = 0;
      for (int j = 0; j < kFiner; ++j) {
        for (int i = 0; i < kFiner; ++i) {
          const int fine_x = kFiner * x + i, fine_y = kFiner * y + j;
          const auto distance = static_cast<double>(
              distances[static_cast<std::size_t>(fine_y) * kFineWidth + static_cast<std::size_t>(fine_x)]);
          line += darkness[std::min(darkness.size() - 1, static_cast<std::size_t>(distance / kFiner * 64))];
          dry += land[fine_y * mask_stride + fine_x] / 255.0;
        }
      }
      constexpr double kCount = kFiner * kFiner;
      const unsigned sea = Mixed(kSeaGround, kWaterLine, line / kCount);
      pixels[y * stride + x] = dry == 0 ? sea : Mixed(FromHex(sea), kPaper, dry / kCount);
    }
  }
  cairo_surface_mark_dirty(picture.Surface());
}

bool IsCovered(const WaterChanges& changes, Place place) {
  return std::any_of(changes.Land().begin(), changes.Land().end(),
                     [&](const Outline& outline) { return Holds(outline, place); });
}

// Draws a shore, with gaps where the changes put land.
void TraceShore(cairo_t* context, const Projection& projection, const WaterChanges& changes,
                const Outline& points) {
  bool is_drawing = false;
  for (const Place& place : points) {
    if (IsCovered(changes, place)) {
      is_drawing = false;
      continue;
    }
    const Point at = projection.At(place);
    if (is_drawing) {
      cairo_line_to(context, at.x, at.y);
    } else {
      cairo_move_to(context, at.x, at.y);
    }
    is_drawing = true;
  }
}

}  // namespace

WaterChanges::WaterChanges(const std::vector<Section>& sections) {
  for (const Section& section : sections) {
    for (const auto& [key, value] : section.entries) {
      if (key == "land") land_.push_back(ReadOutline(value));
      if (key == "lake") lakes_.push_back(ReadOutline(value));
    }
  }
}

MapGround::MapGround(const CoastLine& coast, const WaterChanges& changes, const Projection& projection,
                     int least_river_rank)
    : projection_(projection) {
  std::vector<const Square*> squares;
  for (const Square& square : coast.Squares()) {
    if (IsSeen(projection, square.south_west, kSquareDegrees)) squares.push_back(&square);
  }
  const Owned<cairo_surface_t> fine_mask = DrawLandMask(squares, changes, projection);
  PaintLandAndSea(picture_, fine_mask.get());
  land_ = Reduced(fine_mask.get());

  cairo_t* const context = picture_.Context();
  cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
  SetColour(context, kWaterLine);
  cairo_set_line_width(context, 1);
  for (const River& river : coast.Rivers()) {
    if (river.rank > least_river_rank || !IsSeen(projection, Middle(river.points), 0)) continue;
    TraceShore(context, projection, changes, river.points);
  }
  cairo_stroke(context);
  cairo_set_line_width(context, 0.9);
  const auto draw_shores = [&](bool of_lakes) {
    for (const Square* square : squares) {
      for (const Shore& shore : square->shores) {
        const bool is_blot = shore.enters == kClosed && IsTiny(shore.points, shore.level, projection);
        if (!is_blot && (shore.level > Shore::kCoast) == of_lakes)
          TraceShore(context, projection, changes, shore.points);
      }
    }
  };
  SetColour(context, kCoast);
  draw_shores(false);
  cairo_stroke(context);
  // Lakes, and rivers that are wide enough to have two shores.
  SetColour(context, kLakeShore);
  draw_shores(true);
  for (const Outline& lake : changes.Lakes()) {
    Trace(context, projection, lake);
    cairo_close_path(context);
  }
  cairo_stroke(context);
}

bool MapGround::IsWater(Point point) const {
  const int x = std::clamp(static_cast<int>(point.x), 0, kWidth - 1);
  const int y = std::clamp(static_cast<int>(point.y), 0, kHeight - 1);
  constexpr unsigned char kHalf = 128;
  return cairo_image_surface_get_data(land_.get())[y * cairo_image_surface_get_stride(land_.get()) + x] <
         kHalf;
}

double MapGround::ShareOfWater(const Box& box) const {
  constexpr double kStep = 3;
  int wet = 0;
  int all = 0;
  for (double y = box.top; y <= box.bottom; y += kStep) {
    for (double x = box.left; x <= box.right; x += kStep) {
      ++all;
      if (IsWater({x, y})) ++wet;
    }
  }
  return static_cast<double>(wet) / all;
}

Outline ReadOutline(std::string_view text) {
  Outline outline;
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at < end) {
    Place place{};
    const auto [comma, wrong_longitude] = std::from_chars(at, end, place.longitude);
    if (wrong_longitude != std::errc{} || comma == end) break;
    const auto [behind, wrong_latitude] = std::from_chars(comma + 1, end, place.latitude);
    if (wrong_latitude != std::errc{}) break;
    outline.push_back(place);
    at = behind;
    while (at < end && *at == ' ') ++at;
  }
  if (at != end || outline.empty()) throw make_data::Obstacle("No outline: " + std::string(text));
  return outline;
}

struct MapGrounds::Region {
  Projection projection;
  int least_river_rank;
  std::once_flag is_made{};
  std::unique_ptr<const MapGround> ground{};
};

// The numbers are the corners of the area that all maps together show.
MapGrounds::MapGrounds() : coast_({-12, 8}, {74, 50}), changes_(ReadSections(WrittenTable("waters.txt"))) {
  for (const Section& section : ReadSections(WrittenTable("regions.txt"))) {
    Place middle{};
    std::istringstream(section.Value("middle")) >> middle.longitude >> middle.latitude;
    const double degrees = std::stod(section.Value("degrees"));
    regions_[section.title].reset(
        new Region{Projection(middle, degrees), std::stoi(section.Value("rivers"))});
  }
}

MapGrounds::~MapGrounds() = default;

const MapGround& MapGrounds::Of(const std::string& name) const {
  const auto found = regions_.find(name);
  if (found == regions_.end()) throw make_data::Obstacle("regions.txt has no " + name + ".");
  Region& region = *found->second;
  std::call_once(region.is_made, [&] {
    region.ground = std::make_unique<MapGround>(coast_, changes_, region.projection, region.least_river_rank);
  });
  return *region.ground;
}

const std::vector<Section>& MapSections() {
  static const std::vector<Section> kSections = ReadSections(WrittenTable("maps.txt"));
  return kSections;
}

}  // namespace lectern::plates
