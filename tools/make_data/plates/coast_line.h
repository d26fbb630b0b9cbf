// The shores and rivers of the GSHHG data set, from package gmt-gshhg-high: the earth divided into squares,
// each with the pieces of the shores that cross it. They are read once and used by all maps.
#pragma once

#include <vector>

#include "tools/make_data/plates/projection.h"

namespace lectern::plates {

using Outline = std::vector<Place>;

// Instead of a side: a shore that closes within its square.
inline constexpr int kClosed = 4;

// A piece of a shore. The levels have the numbers of the data set.
struct Shore {
  enum Level { kCoast = 1, kLake = 2, kIsland = 3, kPond = 4 };
  int level;
  int enters, leaves;  // the square's side where it begins and ends: south, east, north, west; or kClosed
  Outline points;
};

struct Square {
  Place south_west;
  std::vector<Shore> shores;
  int corner_levels[4];  // of what the corners lie in: 0 sea, 1 land, 2 lake …; from the south-west, against
                         // the clock
};

struct River {
  int rank;  // 0 for the largest; from 8 on canals
  Outline points;
};

inline constexpr double kSquareDegrees = 2;

class CoastLine {
 public:
  // Reads the squares that the region touches. Throws an Obstacle if the package is missing.
  CoastLine(Place south_west, Place north_east);

  const std::vector<Square>& Squares() const { return squares_; }
  const std::vector<River>& Rivers() const { return rivers_; }

 private:
  std::vector<Square> squares_;
  std::vector<River> rivers_;
};

// The parts of a square that lie within shores of the level (land for the coast, water for lakes), as closed
// outlines.
std::vector<Outline> ClosedOutlines(const Square& square, Shore::Level level);

}  // namespace lectern::plates
