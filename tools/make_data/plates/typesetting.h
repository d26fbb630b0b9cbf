// Text layouts of Pango in the plates' typeface, for those plates that set whole paragraphs.
#pragma once

#include <memory>
#include <pango/pangocairo.h>

#include "tools/make_data/plates/canvas.h"
#include "tools/make_data/plates/lettering.h"

namespace lectern::plates {

struct Unref {
  void operator()(gpointer object) const { g_object_unref(object); }
};
using Layout = std::unique_ptr<PangoLayout, Unref>;

Layout NewLayout();
void SetLetters(PangoLayout* layout, const Letters& letters);

}  // namespace lectern::plates
