// Which drawings the gallery is made from: a table, one entry a picture.
#pragma once

#include <span>
#include <string_view>

namespace lectern::make_data {

struct Drawing {
  std::string_view name;      // of the picture
  std::string_view file;      // below the folder of drawings
  std::string_view places;    // "Genesis 3: 6; Revelation 22: 2"
  std::string_view artist{};  // where the drawing itself has the name garbled
};

extern const std::span<const Drawing> kDrawings;

}  // namespace lectern::make_data
