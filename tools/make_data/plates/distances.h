// How far every point of a map lies from land.
#pragma once

#include <cairo.h>
#include <vector>

namespace lectern::plates {

// Of each pixel of a mask, a row behind the other, the distance in pixels to the nearest one that is at least
// half opaque.
std::vector<float> DistancesToLand(cairo_surface_t* mask);

}  // namespace lectern::plates
