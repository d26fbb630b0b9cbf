#include "tools/make_data/plates/map_plate.h"

#include <algorithm>
#include <cmath>

#include "tools/make_data/plates/map_drawing.h"
#include "tools/make_data/plates/sections.h"
#include "tools/make_data/texts.h"

namespace lectern::plates {

namespace {

Colour ColourNamed(const std::string& name) {
  if (name == "red") return kRed;
  if (name == "blue") return kBlue;
  if (name == "gold") return kGold;
  if (name == "green") return kGreen;
  throw make_data::Obstacle("maps.txt has a colour " + name + ".");
}

// A colour of the palette and a name: "blue Judah".
std::pair<Colour, std::string> ColourAndName(const std::string& value) {
  const std::size_t blank = value.find(' ');
  return {ColourNamed(value.substr(0, blank)), value.substr(blank + 1)};
}

const Section& AreaNamed(const std::string& name) {
  static const std::vector<Section> kAreas = ReadSections(WrittenTable("areas.txt"));
  const auto found =
      std::find_if(kAreas.begin(), kAreas.end(), [&](const Section& area) { return area.title == name; });
  if (found == kAreas.end()) throw make_data::Obstacle("areas.txt has no " + name + ".");
  return *found;
}

std::vector<Point> FlatPath(cairo_t* context) {
  std::vector<Point> points;
  cairo_path_t* const path = cairo_copy_path_flat(context);
  for (int i = 0; i < path->num_data; i += path->data[i].header.length) {
    if (path->data[i].header.type == CAIRO_PATH_CLOSE_PATH) continue;
    points.push_back({path->data[i + 1].point.x, path->data[i + 1].point.y});
  }
  cairo_path_destroy(path);
  return points;
}

// Points a pixel or two apart along a route.
std::vector<Point> AlongRoute(const std::vector<Point>& stations) {
  const Canvas nowhere(kPaper, 1, 1);
  SmoothPath(nowhere.Context(), stations);
  const std::vector<Point> corners = FlatPath(nowhere.Context());
  std::vector<Point> points;
  for (std::size_t i = 0; i + 1 < corners.size(); ++i) {
    const Point from = corners[i], to = corners[i + 1];
    const int steps = 1 + static_cast<int>(std::hypot(to.x - from.x, to.y - from.y) / 2);
    for (int step = 0; step < steps; ++step) {
      const double share = static_cast<double>(step) / steps;
      points.push_back({from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share});
    }
  }
  if (!corners.empty()) points.push_back(corners.back());
  return points;
}

}  // namespace

MapPlate::MapPlate(const Section& section, const MapGround& ground)
    : map_{.ground = ground, .title = section.title, .passage = ShownPassage(section.Value("passage"))} {
  for (const std::string& names : section.Values("places")) {
    for (const std::string& name : Parts(names, ';')) AddPlace(name);
  }
  for (const std::string& route : section.Values("route")) AddRoute(route);
  for (const std::string& area : section.Values("area")) AddArea(area);
  AddTitle();
  PlaceLabels(map_.labels, WhatStands());
}

void MapPlate::AddPlace(const std::string& name) {
  const NamedPlace& place = PlaceNamed(name);
  const Manner manner = MannerOf(place.kind);
  const Point at = map_.ground.Scale().At(place.at);
  if (place.IsPoint()) map_.signs.push_back({at, &place});
  const bool is_on_land = place.kind == PlaceKind::kLand || place.kind == PlaceKind::kPeople;
  const Ground upon = place.kind == PlaceKind::kSea ? Ground::kWater
                      : is_on_land                  ? Ground::kLand
                                                    : Ground::kEither;
  map_.labels.push_back({place.name, manner.letters, manner.colour, at, manner.sign_radius, upon});
}

// Names, with points in degrees between them where the route bends: "Joppa, 34.5,32.5, Tarshish".
void MapPlate::AddRoute(const std::string& value) {
  std::vector<Point> stations;
  for (const std::string& station : Parts(value, ';')) {
    const bool is_point = station[0] == '-' || (station[0] >= '0' && station[0] <= '9');
    stations.push_back(map_.ground.Scale().At(is_point ? ReadOutline(station)[0] : PlaceNamed(station).at));
  }
  map_.routes.push_back(AlongRoute(stations));
}

void MapPlate::AddArea(const std::string& value) {
  const auto [colour, name] = ColourAndName(value);
  for (const auto& [form, corners] : AreaNamed(name).entries) {
    std::vector<Point> outline;
    for (const Place& corner : ReadOutline(corners)) outline.push_back(map_.ground.Scale().At(corner));
    if (form == "curve") {
      outline.push_back(outline.front());
      outline = AlongRoute(outline);
    }
    map_.areas.push_back({std::move(outline), colour});
  }
}

// Puts the title into the corner where it covers the least.
void MapPlate::AddTitle() {
  constexpr double kAside = 14, kPadding = 14, kTall = 68;
  const double wide =
      std::max({Measure(map_.title, kTitleLetters).width, Measure(map_.passage, kPassageLetters).width,
                ScaleBar(map_.ground.Scale()).second + 40}) +
      2 * kPadding;
  const double left = kInside.left + kAside, right = kInside.right - kAside - wide;
  const double top = kInside.top + kAside, bottom = kInside.bottom - kAside - kTall;
  double least = 1e9;
  for (const Point at : {Point{left, bottom}, Point{right, bottom}, Point{left, top}, Point{right, top}}) {
    const Box box{at.x, at.y, at.x + wide, at.y + kTall};
    const double cost = CostOfCovering(box.Grown(6));
    if (cost < least) {
      least = cost;
      map_.title_box = box;
    }
  }
}

double MapPlate::CostOfCovering(const Box& box) const {
  const auto holds = [&](Point point) { return box.Meets({point.x, point.y, point.x, point.y}); };
  double cost = 0;
  for (const Label& label : map_.labels) {
    constexpr double kNameReach = 30;
    if (holds(label.anchor)) cost += label.sign_radius > 0 ? 100 : 30;
    if (box.Grown(kNameReach).Meets({label.anchor.x, label.anchor.y, label.anchor.x, label.anchor.y}))
      cost += 5;
  }
  for (const Route& route : map_.routes) {
    cost += 2 * static_cast<double>(std::count_if(route.begin(), route.end(), holds));
  }
  for (const Area& area : map_.areas) {
    cost += 20 * static_cast<double>(std::count_if(area.outline.begin(), area.outline.end(), holds));
  }
  return cost;
}

Surroundings MapPlate::WhatStands() const {
  Surroundings surroundings;
  surroundings.obstacles.push_back(map_.title_box.Grown(5));
  for (const Sign& sign : map_.signs) {
    const double radius = MannerOf(sign.place->kind).sign_radius;
    surroundings.obstacles.push_back(Box{sign.at.x, sign.at.y, sign.at.x, sign.at.y}.Grown(radius - 1));
  }
  for (const Route& route : map_.routes) {
    surroundings.lines.insert(surroundings.lines.end(), route.begin(), route.end());
  }
  surroundings.share_of_water = [this](const Box& box) { return map_.ground.ShareOfWater(box); };
  return surroundings;
}

std::string MapPlate::AsJpeg() const { return DrawnMap(map_); }

}  // namespace lectern::plates
