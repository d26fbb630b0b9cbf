// What the paint window reads: the pointers of the five brushes and the palette.
#pragma once

#include <string>

namespace lectern::make_data {

// The bytes of an icon: a ring of the given diameter in the middle, dark inside a light edge, so that it is
// seen on any picture.
std::string RingIcon(int diameter);

// The 24 pairs of the palette. Each pen value is the complement of the colour that is shown, so that on white
// paper a swatch shows what it paints.
std::string PaletteRecords();

// Writes `cdx1.ico` to `cdx5.ico`, and `colors.dat` where there is none: the palette is the person's.
void MakePaintFiles(const std::string& data_folder);

}  // namespace lectern::make_data
