// Makes the gallery: the pictures, the catalogue of them, and the pages that the program itself wants.
//
// What is there already stays as it is: the catalogue is the keeper's as soon as it is there, and a picture
// may have been painted on.
#pragma once

#include <string>

namespace lectern::make_data {

void MakePictures(const std::string& data_folder);

// The records of the table in the order of scripture, as the catalogue holds them; the credits come from
// the drawings in `folder`.
std::string PictureCatalogueText(const std::string& folder);

}  // namespace lectern::make_data
