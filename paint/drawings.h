// The small pictures that the paint window's buttons bear, drawn rather than loaded: arrows, strokes of the
// brushes, the white page.
#pragma once

#include "forms/picture.h"

namespace lectern::paint {

enum class Direction { kLeft, kUp, kRight, kDown };

forms::Picture ArrowPicture(Direction direction);

// A magnifying glass.
forms::Picture GlassPicture();

// A brush's stroke from top to bottom, in a picture `width` pixels wide.
forms::Picture StrokePicture(int width, int thickness);

forms::Picture WhitePage(int width, int height);

}  // namespace lectern::paint
