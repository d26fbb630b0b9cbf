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

// A vector drawing as a plate: its drawn part, as large as fits, on the plates' ground and in their frame.
// Throws an Obstacle if the file cannot be drawn.
std::string DrawnAsJpeg(const std::string& path);

// The artist that a vector drawing's metadata names; "" if it names none.
std::string ArtistOf(const std::string& path);

// The drawings of clip_art.txt. Throws an Obstacle if the package is missing.
std::vector<Plate> ClipArt();

std::string EndCard();    // is shown on the strip after the last picture
std::string BlankPage();  // to paint on

}  // namespace lectern::plates
