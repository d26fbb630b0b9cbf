// Scrollwork: the grounds of initials and the pieces that close a page.
#pragma once

#include <cairo.h>
#include <string>

#include "tools/make_data/plates/style.h"

namespace lectern::plates {

// A letter in a square of scrolls.
void DrawInitial(cairo_t* context, const std::string& letter, const Box& square, Colour ground);

// Two scrolls that meet in the middle.
void DrawTailpiece(cairo_t* context, Point middle, double width, Colour colour);

}  // namespace lectern::plates
