// The plates that are vector drawings: our own, those of others, and the two pages that the program itself
// wants.
#pragma once

#include <string>
#include <vector>

#include "tools/make_data/plates/gallery.h"
#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

// A drawing in outline from drawings.txt: the days of creation, plans, and things. The body of its section is
// what stands inside an SVG document of the plate's size; its classes are the plates' colours.
class DrawingPlate {
 public:
  explicit DrawingPlate(const Section& section);

  std::string AsJpeg() const;

 private:
  std::string title_, passage_, document_;
};

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
