// The files of the paint window: the pointers of the five brushes and the palette.
#pragma once

#include <string>

namespace lectern::make_data {

// The bytes of an icon: a ring of the given diameter in the middle, dark with a light edge, so that it is
// visible on any picture.
std::string RingIcon(int diameter);

// The 24 pairs of the palette. Each pen value is the complement of the colour shown, so that on white paper a
// swatch paints the colour that it shows.
std::string PaletteRecords();

// Writes `cdx1.ico` to `cdx5.ico`, and `colors.dat` if there is none: an existing palette is the person's.
void MakePaintFiles(const std::string& data_folder);

}  // namespace lectern::make_data
