#include "tools/make_data/plates/lettering.h"

#include <memory>
#include <pango/pangocairo.h>
#include <string_view>

#include "tools/make_data/plates/canvas.h"
#include "tools/make_data/texts.h"

namespace lectern::plates {

namespace {

constexpr const char* kFamily = "EB Garamond";
constexpr double kCapitalHeight = 0.65;  // of the em
constexpr double kDescent = 0.24;

Layout OneLine(const std::string& text, const Letters& letters) {
  Layout layout = NewLayout();
  SetLetters(layout.get(), letters);
  pango_layout_set_text(layout.get(), text.c_str(), static_cast<int>(text.size()));
  return layout;
}

double WidthOf(PangoLayout* layout, const Letters& letters) {
  int width = 0;
  pango_layout_get_size(layout, &width, nullptr);
  return static_cast<double>(width) / PANGO_SCALE - letters.spacing;
}

double StartOf(double width, Point at, Align align) {
  return align == Align::kLeft ? at.x : align == Align::kMiddle ? at.x - width / 2 : at.x - width;
}

}  // namespace

Layout NewLayout() {
  // Each thread has a font map of its own.
  thread_local const std::unique_ptr<PangoContext, Unref> kContext = [] {
    std::unique_ptr<PangoContext, Unref> context(
        pango_font_map_create_context(pango_cairo_font_map_get_default()));
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    pango_cairo_context_set_font_options(context.get(), options);
    pango_context_set_round_glyph_positions(context.get(), FALSE);
    cairo_font_options_destroy(options);
    return context;
  }();
  return Layout(pango_layout_new(kContext.get()));
}

void SetLetters(PangoLayout* layout, const Letters& letters) {
  PangoFontDescription* const font = pango_font_description_new();
  pango_font_description_set_family_static(font, kFamily);
  pango_font_description_set_absolute_size(font, letters.size * PANGO_SCALE);
  if (letters.is_italic) pango_font_description_set_style(font, PANGO_STYLE_ITALIC);
  pango_layout_set_font_description(layout, font);
  pango_font_description_free(font);
  PangoAttrList* const attributes = pango_attr_list_new();
  if (letters.spacing != 0) {
    pango_attr_list_insert(attributes,
                           pango_attr_letter_spacing_new(static_cast<int>(letters.spacing * PANGO_SCALE)));
  }
  if (letters.has_small_capitals) {
    pango_attr_list_insert(attributes, pango_attr_font_features_new("smcp=1, c2sc=1"));
  }
  pango_layout_set_attributes(layout, attributes);
  pango_attr_list_unref(attributes);
}

Extent Measure(const std::string& text, const Letters& letters) {
  const Layout layout = OneLine(text, letters);
  return {WidthOf(layout.get(), letters), letters.size * kCapitalHeight, letters.size * kDescent};
}

void DrawText(cairo_t* context, const std::string& text, const Letters& letters, Point at, Align align,
              Colour colour) {
  const Layout layout = OneLine(text, letters);
  SetColour(context, colour);
  cairo_move_to(context, StartOf(WidthOf(layout.get(), letters), at, align), at.y);
  pango_cairo_show_layout_line(context, pango_layout_get_line_readonly(layout.get(), 0));
  cairo_new_path(context);
}

void DrawTextWithRim(cairo_t* context, const std::string& text, const Letters& letters, Point at, Align align,
                     Colour colour, Colour rim, double rim_width) {
  const Layout layout = OneLine(text, letters);
  const double left = StartOf(WidthOf(layout.get(), letters), at, align);
  cairo_move_to(context, left, at.y);
  pango_cairo_layout_line_path(context, pango_layout_get_line_readonly(layout.get(), 0));
  SetColour(context, rim);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
  cairo_set_line_width(context, rim_width);
  cairo_stroke(context);
  DrawText(context, text, letters, {left, at.y}, Align::kLeft, colour);
}

void RequireLettering() {
  PangoFontFamily** families = nullptr;
  int count = 0;
  pango_font_map_list_families(pango_cairo_font_map_get_default(), &families, &count);
  bool is_there = false;
  for (int i = 0; i < count; ++i) {
    is_there = is_there || std::string_view(pango_font_family_get_name(families[i])) == kFamily;
  }
  g_free(families);
  if (is_there) return;
  throw make_data::Obstacle(
      "The typeface EB Garamond is missing. Install fonts-ebgaramond (apt-get install fonts-ebgaramond) and "
      "run "
      "this again.");
}

}  // namespace lectern::plates
