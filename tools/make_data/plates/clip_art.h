// Vector drawings of others that stand in the gallery beside the plates, and the two pages that the program
// itself wants.
#pragma once

#include <string>
#include <vector>

#include "tools/make_data/plates/gallery.h"

namespace lectern::plates {

// A vector drawing as a plate: the drawn part of it as large as fits, on the plates' ground and in their
// frame. An Obstacle where the file cannot be drawn.
std::string DrawnAsJpeg(const std::string& path);

// Who made a vector drawing, by its own metadata; "" where that names nobody.
std::string ArtistOf(const std::string& path);

// The drawings of clip_art.txt. An Obstacle where the package is missing.
std::vector<Plate> ClipArt();

std::string EndCard();    // stands in the strip behind the last picture
std::string BlankPage();  // to paint on

}  // namespace lectern::plates
