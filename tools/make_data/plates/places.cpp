#include "tools/make_data/plates/places.h"

#include <sstream>

#include "tools/make_data/plates/sections.h"
#include "tools/make_data/texts.h"

namespace lectern::plates {

namespace {

PlaceKind KindNamed(const std::string& name) {
  static const std::map<std::string, PlaceKind> kKinds = {
      {"towns", PlaceKind::kTown},        {"cities", PlaceKind::kCity},
      {"mounts", PlaceKind::kMount},      {"lands", PlaceKind::kLand},
      {"islands", PlaceKind::kSmallLand}, {"portions", PlaceKind::kSmallLand},
      {"peoples", PlaceKind::kPeople},    {"seas", PlaceKind::kSea},
      {"rivers", PlaceKind::kRiver}};
  const auto found = kKinds.find(name);
  if (found == kKinds.end()) throw make_data::Obstacle("No kind of place: " + name);
  return found->second;
}

Gazetteer Read() {
  Gazetteer places;
  for (const Section& section : ReadSections(WrittenTable("places.txt"))) {
    for (const auto& [name, value] : section.entries) {
      NamedPlace place{name.substr(0, name.find(" (")), KindNamed(section.title), {}, Certainty::kKnown};
      std::istringstream fields(value);
      if (!(fields >> place.at.longitude >> place.at.latitude)) {
        throw make_data::Obstacle("places.txt: " + name + ": " + value);
      }
      std::string certainty;
      fields >> certainty;
      if (certainty == "likely") place.certainty = Certainty::kLikely;
      if (certainty == "unsure") place.certainty = Certainty::kUnsure;
      if (!places.emplace(name, place).second)
        throw make_data::Obstacle("places.txt has " + name + " twice.");
    }
  }
  return places;
}

}  // namespace

const Gazetteer& AllPlaces() {
  static const Gazetteer kPlaces = Read();
  return kPlaces;
}

const NamedPlace& PlaceNamed(const std::string& name) {
  const auto found = AllPlaces().find(name);
  if (found == AllPlaces().end()) throw make_data::Obstacle("places.txt has no " + name + ".");
  return found->second;
}

}  // namespace lectern::plates
