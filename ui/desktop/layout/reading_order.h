// The order in which the eye goes over things that stand side by side and below one another, which is the
// order that the Tab key takes: line by line; but things that a taller neighbour stands beside are a column,
// and are gone through before the neighbour.
#pragma once

#include <QRect>
#include <cstddef>
#include <vector>

namespace lectern::desktop {

// The places, as positions in the vector, in that order. Where some lie over one another, so that no straight
// cut parts them, the one that begins highest comes first.
std::vector<std::size_t> ReadingOrder(const std::vector<QRect>& places);

}  // namespace lectern::desktop
