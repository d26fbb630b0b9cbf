// Lettering in EB Garamond: single lines, and layouts of Pango for plates that set whole paragraphs.
#pragma once

#include <cairo.h>
#include <memory>
#include <pango/pangocairo.h>
#include <string>

#include "tools/make_data/plates/style.h"

namespace lectern::plates {

struct Letters {
  double size = 13;  // of the em, in pixels
  bool is_italic = false;
  bool has_small_capitals = false;
  double spacing = 0;  // between letters
};

enum class Align { kLeft, kMiddle, kRight };

struct Extent {
  double width;
  double ascent;   // of a capital, above the base line
  double descent;  // below it
};

// Requires: EB Garamond is installed (RequireLettering).
Extent Measure(const std::string& text, const Letters& letters);

// Draws one line of text with its base line at the point.
void DrawText(cairo_t* context, const std::string& text, const Letters& letters, Point at, Align align,
              Colour colour);

// The same with a rim in the colour of the ground, which keeps lines away from the letters.
void DrawTextWithRim(cairo_t* context, const std::string& text, const Letters& letters, Point at, Align align,
                     Colour colour, Colour rim, double rim_width = 3);

// Throws an Obstacle if the typeface is not installed.
void RequireLettering();

struct Unref {
  void operator()(gpointer object) const { g_object_unref(object); }
};
using Layout = std::unique_ptr<PangoLayout, Unref>;

Layout NewLayout();
void SetLetters(PangoLayout* layout, const Letters& letters);

}  // namespace lectern::plates
