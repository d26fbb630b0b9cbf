// The places of the maps: where each lies, what it is, and how sure that is.
#pragma once

#include <map>
#include <string>

#include "tools/make_data/plates/lettering.h"
#include "tools/make_data/plates/projection.h"

namespace lectern::plates {

enum class PlaceKind { kTown, kCity, kMount, kLand, kSmallLand, kPeople, kSea, kRiver };
enum class Certainty { kKnown, kLikely, kUnsure };

struct NamedPlace {
  std::string name;  // as it stands on a map
  PlaceKind kind;
  Place at;
  Certainty certainty;

  // A town or a mount, which has a sign of its own; the names of others spread over what they name.
  bool IsPoint() const { return kind <= PlaceKind::kMount; }
};

// By the name in the table, which has a remark in brackets behind it where two places share one: "Antioch
// (Pisidia)".
using Gazetteer = std::map<std::string, NamedPlace>;

const Gazetteer& AllPlaces();

// The place of a name. Throws an Obstacle if the table does not have it.
const NamedPlace& PlaceNamed(const std::string& name);

}  // namespace lectern::plates
