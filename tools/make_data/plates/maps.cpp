#include "tools/make_data/plates/maps.h"

#include <mutex>
#include <sstream>

#include "tools/make_data/texts.h"

namespace lectern::plates {

struct MapGrounds::Region {
  Projection projection;
  int least_river_rank;
  std::once_flag is_made{};
  std::unique_ptr<const MapGround> ground{};
};

// The corners of all that the maps show.
MapGrounds::MapGrounds() : coast_({-12, 8}, {74, 50}), changes_(ReadSections(WrittenTable("waters.txt"))) {
  for (const Section& section : ReadSections(WrittenTable("regions.txt"))) {
    Place middle{};
    std::istringstream(section.Value("middle")) >> middle.longitude >> middle.latitude;
    const double degrees = std::stod(section.Value("degrees"));
    regions_[section.title].reset(
        new Region{Projection(middle, degrees), std::stoi(section.Value("rivers"))});
  }
}

MapGrounds::~MapGrounds() = default;

const MapGround& MapGrounds::Of(const std::string& name) const {
  const auto found = regions_.find(name);
  if (found == regions_.end()) throw make_data::Obstacle("regions.txt has no " + name + ".");
  Region& region = *found->second;
  std::call_once(region.is_made, [&] {
    region.ground = std::make_unique<MapGround>(coast_, changes_, region.projection, region.least_river_rank);
  });
  return *region.ground;
}

const std::vector<Section>& MapSections() {
  static const std::vector<Section> kSections = ReadSections(WrittenTable("maps.txt"));
  return kSections;
}

}  // namespace lectern::plates
