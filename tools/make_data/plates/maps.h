// All maps of maps.txt.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tools/make_data/plates/map_ground.h"
#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

// The grounds of all regions, each made when it is first asked for. They may be asked for by several threads.
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
