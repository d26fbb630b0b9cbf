// A map: a region's ground with places, names, routes and tinted lands upon it, and a title.
#pragma once

#include <string>
#include <vector>

#include "tools/make_data/plates/map_drawing.h"
#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

class MapPlate {
 public:
  // A section of maps.txt upon its region's ground, with all names placed. The ground outlives the map.
  MapPlate(const Section& section, const MapGround& ground);

  std::string AsJpeg() const;

  // For checks: every name with its place.
  const std::vector<Label>& Labels() const { return map_.labels; }

 private:
  void AddPlace(const std::string& name);
  void AddRoute(const std::string& value);
  void AddArea(const std::string& value);
  void AddTitle();
  double CostOfCovering(const Box& box) const;
  Surroundings WhatStands() const;

  MapContent map_;
};

}  // namespace lectern::plates
