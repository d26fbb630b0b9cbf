// A map: the ground of a region with places, names, routes, tinted lands and a title.
#pragma once

#include <string>
#include <vector>

#include "tools/make_data/plates/map_drawing.h"
#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

class MapPlate {
 public:
  // Makes the map of a section of maps.txt and places all names. The ground must outlive the map.
  MapPlate(const Section& section, const MapGround& ground);

  std::string AsJpeg() const;

  // Every name with its place, for checks.
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
