// Where the names on a map stand: each beside its sign or upon its land, and none over another, over a sign,
// the title or the frame.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/make_data/plates/lettering.h"

namespace lectern::plates {

// What a name that spreads over what it names had better stand on.
enum class Ground { kLand, kWater, kEither };

struct Label {
  std::string text;
  Letters letters;
  Colour colour;
  Point anchor;        // the sign's middle, or the middle of what is named
  double sign_radius;  // 0 for a name that spreads over what it names
  Ground upon = Ground::kEither;

  Box box{};             // where it was placed
  bool is_clear = true;  // whether it stands free of everything
};

struct Surroundings {
  std::vector<Box> obstacles;  // signs, the title
  std::vector<Point> lines;    // points along the routes, which names had better not cover
  std::function<double(const Box&)> share_of_water;
};

void PlaceLabels(std::vector<Label>& labels, const Surroundings& surroundings);

// The start of the base line of a label that has been placed.
Point BaseLine(const Label& label);

}  // namespace lectern::plates
