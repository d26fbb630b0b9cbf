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
extern const std::span<const Place> kDictionaryPlaces;
extern const std::span<const Place> kTriviaPlaces;
extern const std::span<const Place> kBookmarkPlaces;
extern const std::span<const Place> kHelpPlaces;
extern const std::span<const Place> kSettingsPlaces;
extern const std::span<const Place> kGalleryPlaces;
extern const std::span<const Place> kBenchPlaces;
extern const std::span<const Place> kStoragePlaces;

// clang-format off
inline const std::array kForm1Places = {
    kReaderPlaces,
    kSearchPlaces,
    kConcordancePlaces,
    kDictionaryPlaces,
    kTriviaPlaces,
    kBookmarkPlaces,
    kHelpPlaces,
    kSettingsPlaces,
    kGalleryPlaces,
    kBenchPlaces,
    kStoragePlaces,
};
// clang-format on

}  // namespace lectern::ui
