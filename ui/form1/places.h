// The places of the main window's controls, a table for each panel. The client area is 916 by 668 pixels;
// what stands right of it is out of the reader's reach.
#pragma once

#include <array>
#include <span>

#include "ui/places.h"

namespace lectern::ui {

extern const std::span<const Place> kReaderPlaces;
extern const std::span<const Place> kSearchPlaces;
extern const std::span<const Place> kConcordancePlaces;
extern const std::span<const Place> kGalleryPlaces;
extern const std::span<const Place> kBenchPlaces;
extern const std::span<const Place> kStoragePlaces;

inline const std::array kForm1Places = {kReaderPlaces,  kSearchPlaces, kConcordancePlaces,
                                        kGalleryPlaces, kBenchPlaces,  kStoragePlaces};

}  // namespace lectern::ui
