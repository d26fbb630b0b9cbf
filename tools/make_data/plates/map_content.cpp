#include "tools/make_data/plates/map_content.h"

#include <array>

namespace lectern::plates {

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
