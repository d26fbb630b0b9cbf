// Draws the pictures of the gallery: vector drawings, and the two pages that the program itself wants.
#pragma once

#include <string>

namespace lectern::make_data {

// A vector drawing as a JPEG of 640 by 480 pixels, the drawn part of it as large as fits on white. An
// Obstacle where the file cannot be drawn.
std::string DrawnAsJpeg(const std::string& path);

// Who made a vector drawing, by its own metadata; "" where that names nobody.
std::string ArtistOf(const std::string& path);

std::string EndCard();    // stands in the strip behind the last picture
std::string BlankPage();  // to paint on

}  // namespace lectern::make_data
