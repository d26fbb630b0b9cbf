// A drawing in outline from drawings.txt: the days of creation, plans, and things. The body of its section is
// what stands inside an SVG document of the plate's size; its classes are the plates' colours.
#pragma once

#include <string>

#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

class DrawingPlate {
 public:
  explicit DrawingPlate(const Section& section);

  std::string AsJpeg() const;

 private:
  std::string title_, passage_, document_;
};

}  // namespace lectern::plates
