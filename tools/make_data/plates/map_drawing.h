// Draws a map whose content has its place.
#pragma once

#include <string>

#include "tools/make_data/plates/map_content.h"

namespace lectern::plates {

// The picture's file.
std::string DrawnMap(const MapContent& map);

}  // namespace lectern::plates
