// The places of the paint window's controls. The client area is 1045 by 699 pixels.
#pragma once

#include <span>

#include "ui/places.h"

namespace lectern::ui {

extern const std::span<const Place> kPaintPlaces;

}  // namespace lectern::ui
