// The content of a map, with places on the plate, and how it is drawn.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tools/make_data/plates/labels.h"
#include "tools/make_data/plates/map_ground.h"
#include "tools/make_data/plates/places.h"

namespace lectern::plates {

struct Sign {
  Point at;
  const NamedPlace* place;
};

using Route = std::vector<Point>;  // points a pixel or two apart

struct Area {
  std::vector<Point> outline;
  Colour colour;
};

struct MapContent {
  const MapGround& ground;
  std::string title, passage;
  Box title_box{};
  std::vector<Sign> signs{};
  std::vector<Route> routes{};
  std::vector<Area> areas{};
  std::vector<Label> labels{};
};

struct Manner {
  Letters letters;
  Colour colour;
  double sign_radius;
};

Manner MannerOf(PlaceKind kind);

constexpr Letters kTitleLetters{.size = 21};
constexpr Letters kPassageLetters{.size = 13.5, .is_italic = true};

// The length of the scale bar: a round number of miles, and the same in pixels.
std::pair<int, double> ScaleBar(const Projection& projection);

// The bytes of the picture's file.
std::string DrawnMap(const MapContent& map);

}  // namespace lectern::plates
