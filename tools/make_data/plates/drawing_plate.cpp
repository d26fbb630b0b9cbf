#include "tools/make_data/plates/drawing_plate.h"

#include <librsvg/rsvg.h>

#include "tools/make_data/plates/canvas.h"
#include "tools/make_data/plates/passage.h"
#include "tools/make_data/plates/typesetting.h"
#include "tools/make_data/texts.h"

namespace lectern::plates {

namespace {

// The palette, by the names that the drawings use: f- fills, the others draw.
constexpr const char* kHead =
    "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='640' "
    "height='436' "
    "viewBox='0 0 640 436'><style>"
    "path,rect,circle,ellipse,line,polyline,polygon{stroke:#35291d;stroke-width:1.8;stroke-linejoin:round;"
    "stroke-linecap:round;fill:none}"
    ".paper{fill:#f7f0df}.sand{fill:#e9d9b4}.gold{fill:#d9b45a}.wood{fill:#c49a63}.dark{fill:#8b6a44}"
    ".stone{fill:#d8cfbd}.grey{fill:#b3aa98}.red{fill:#b04a3c}.blue{fill:#5f80a8}.sea{fill:#bdd4d8}"
    ".green{fill:#8a9c66}.leaf{fill:#6c8150}.ink{fill:#35291d}.night{fill:#2a4a74}.white{fill:#fffaf0}"
    ".none{fill:none}.bare{stroke:none}.fine{stroke-width:1}.thick{stroke-width:2.6}.faint{stroke:#8a7658;"
    "stroke-width:1}.goldline{stroke:#b88a2c}.foam{stroke:#e6eeee}.blueline{stroke:#5f8798}.dash{stroke-"
    "dasharray:5 4}"
    "text{font-family:'EB Garamond';font-size:15px;fill:#35291d;stroke:none;text-anchor:middle}"
    ".it{font-style:italic}.small{font-size:12.5px}.start{text-anchor:start}.end{text-anchor:end}"
    "</style>";

}  // namespace

DrawingPlate::DrawingPlate(const Section& section)
    : title_(section.title), passage_(ShownPassage(section.Value("passage"))), document_(kHead) {
  for (const std::string& line : section.body) document_ += line + "\n";
  document_ += "</svg>";
}

std::string DrawingPlate::AsJpeg() const {
  const std::unique_ptr<RsvgHandle, Unref> drawing(rsvg_handle_new_from_data(
      reinterpret_cast<const guint8*>(document_.data()), document_.size(), nullptr));
  if (!drawing) throw make_data::Obstacle("The drawing " + title_ + " cannot be read.");
  const Canvas canvas;
  cairo_t* const context = canvas.Context();
  cairo_save(context);
  cairo_rectangle(context, kInside.left, kInside.top, kInside.Width(), kInside.Height());
  cairo_clip(context);
  const RsvgRectangle page{0, 0, kWidth, kHeight};
  if (rsvg_handle_render_document(drawing.get(), context, &page, nullptr) == FALSE) {
    throw make_data::Obstacle("The drawing " + title_ + " cannot be drawn.");
  }
  cairo_restore(context);
  DrawHeading(context, title_, passage_);
  DrawFrame(context);
  return canvas.AsJpeg();
}

}  // namespace lectern::plates
