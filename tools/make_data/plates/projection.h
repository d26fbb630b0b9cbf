// Converts places of the earth to points of a plate. A degree of longitude has the length that it has in the
// middle of the region, so that coasts keep their shape.
#pragma once

#include <cmath>
#include <numbers>

#include "tools/make_data/plates/style.h"

namespace lectern::plates {

struct Place {
  double longitude, latitude;
};

class Projection {
 public:
  // The region that fills the plate's width: its middle and how many degrees of longitude it holds.
  Projection(Place middle, double degrees)
      : middle_(middle),
        across_(kWidth / degrees),
        down_(across_ / std::cos(middle.latitude * std::numbers::pi / 180)) {}

  Point At(Place place) const {
    return {kWidth / 2.0 + (place.longitude - middle_.longitude) * across_,
            kHeight / 2.0 - (place.latitude - middle_.latitude) * down_};
  }
  Place PlaceAt(Point point) const {
    return {middle_.longitude + (point.x - kWidth / 2.0) / across_,
            middle_.latitude - (point.y - kHeight / 2.0) / down_};
  }
  double PixelsOfADegree() const { return down_; }

 private:
  Place middle_;
  double across_, down_;
};

}  // namespace lectern::plates
