// Where things lie in a window, in pixels, and in which order a person goes through them.
#pragma once

#include <QRect>
#include <cstddef>
#include <vector>

#include "forms/control.h"

namespace lectern::desktop {

int ToPixels(double twips);

// The place of a control within what it lies in.
QRect PlaceOf(const forms::PlacedControl& control);

// The part of `client` that the controls take up, whether they are visible by now or not. What is a pixel
// small only stores something.
QRect CoveredPart(const forms::Container& container, const QSize& client);

// The order in which the eye goes over things, and with it the Tab key: line by line; but things that stand
// beside a taller neighbour are a column, and come before the neighbour. Returns positions in `places`. Of
// places that overlap, so that no straight cut separates them, the highest comes first.
std::vector<std::size_t> ReadingOrder(const std::vector<QRect>& places);

}  // namespace lectern::desktop
