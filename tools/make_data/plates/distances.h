// The distance of every point of a map from land.
#pragma once

#include <cairo.h>
#include <vector>

namespace lectern::plates {

// For each pixel of a mask, row by row, the distance in pixels to the nearest pixel that is at least half
// opaque.
std::vector<float> DistancesToLand(cairo_surface_t* mask);

}  // namespace lectern::plates
