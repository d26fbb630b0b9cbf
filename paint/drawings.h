// The pictures on the buttons of the paint window, and its white page. They are drawn, not loaded.
#pragma once

#include "forms/picture.h"

namespace lectern::paint {

enum class Direction { kLeft, kUp, kRight, kDown };

forms::Picture ArrowPicture(Direction direction);
forms::Picture GlassPicture();                           // a magnifying glass
forms::Picture StrokePicture(int width, int thickness);  // of a brush, from top to bottom; in pixels
forms::Picture WhitePage();

}  // namespace lectern::paint
