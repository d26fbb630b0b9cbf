// Places the names on a map: each beside its sign or on its land, and none over another name, a sign, the
// title or the frame.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/make_data/plates/lettering.h"

namespace lectern::plates {

// The ground that a name of an area should be placed on.
enum class Ground { kLand, kWater, kEither };

struct Label {
  std::string text;
  Letters letters;
  Colour colour;
  Point anchor;        // the middle of the sign or of the area
  double sign_radius;  // 0 for the name of an area
  Ground upon = Ground::kEither;

  Box box{};             // where it was placed
  bool is_clear = true;  // whether it overlaps nothing
};

struct Surroundings {
  std::vector<Box> obstacles;  // signs, the title
  std::vector<Point> lines;    // points along the routes, which names should not cover
  std::function<double(const Box&)> share_of_water;
};

void PlaceLabels(std::vector<Label>& labels, const Surroundings& surroundings);

// The start of the base line of a label that has been placed.
Point BaseLine(const Label& label);

}  // namespace lectern::plates
