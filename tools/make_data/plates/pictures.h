// The gallery's files in the data folder: the pictures, the catalogue, and the two pages that the program
// wants.
#pragma once

#include <string>
#include <vector>

#include "tools/make_data/plates/gallery.h"

namespace lectern::plates {

// The records of all pictures in the order of the canon, and beside one verse in the order of the plates.
std::string PictureCatalogueText(const std::vector<Plate>& plates);

// Draws what is not there yet, on as many processors as there are. What is there may have been painted on,
// and is left alone.
void MakePictures(const std::string& data_folder, const make_data::Version& text);

}  // namespace lectern::plates
