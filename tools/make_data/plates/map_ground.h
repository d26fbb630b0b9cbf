// The ground of a map, on which its names are drawn: land, sea with engraved water lines, lakes and rivers of
// one region. Each ground is made once and shared by the maps of its region.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tools/make_data/plates/canvas.h"
#include "tools/make_data/plates/coast_line.h"
#include "tools/make_data/plates/projection.h"
#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

// The differences between the data set and the time of scripture: waters.txt.
class WaterChanges {
 public:
  explicit WaterChanges(const std::vector<Section>& sections);

  // Canals and reservoirs, to be filled with land.
  const std::vector<Outline>& Land() const { return land_; }
  // Lakes that have been drained since.
  const std::vector<Outline>& Lakes() const { return lakes_; }

 private:
  std::vector<Outline> land_, lakes_;
};

class MapGround {
 public:
  MapGround(const CoastLine& coast, const WaterChanges& changes, const Projection& projection,
            int least_river_rank);

  const Projection& Scale() const { return projection_; }
  cairo_surface_t* Picture() const { return picture_.Surface(); }
  cairo_surface_t* LandMask() const { return land_.get(); }
  bool IsWater(Point point) const;
  // Whether the coast or a lake's shore runs through the box; rivers do not count.
  double ShareOfWater(const Box& box) const;

 private:
  Projection projection_;
  Canvas picture_;
  Owned<cairo_surface_t> land_;
};

// Reads an outline in degrees: "32.5,29.9 33,30".
Outline ReadOutline(std::string_view text);

// The grounds of all regions, each made on first use. Several threads may use it.
class MapGrounds {
 public:
  MapGrounds();
  ~MapGrounds();

  const MapGround& Of(const std::string& region) const;

 private:
  struct Region;
  CoastLine coast_;
  WaterChanges changes_;
  std::map<std::string, std::unique_ptr<Region>> regions_;
};

const std::vector<Section>& MapSections();

}  // namespace lectern::plates
