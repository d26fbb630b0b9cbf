#include "tools/make_data/plates/drawings.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <librsvg/rsvg.h>
#include <string_view>

#include "tools/make_data/markup.h"
#include "tools/make_data/plates/canvas.h"
#include "tools/make_data/plates/lettering.h"
#include "tools/make_data/plates/ornament.h"
#include "tools/make_data/plates/sections.h"
#include "tools/make_data/texts.h"

namespace lectern::plates {

namespace {

// The palette, as the classes that the drawings use.
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

constexpr const char* kFolder = "/usr/share/openclipart/svg/";
constexpr double kMargin = 22;  // inside the frame

void Render(RsvgHandle* drawing, const Canvas& canvas, const RsvgRectangle& viewport,
            const std::string& path) {
  if (rsvg_handle_render_document(drawing, canvas.Context(), &viewport, nullptr) == FALSE) {
    throw make_data::Obstacle("The drawing " + path + " cannot be drawn.");
  }
}

// The part of a canvas that differs from the ground's colour; empty if nothing is drawn.
Box DrawnPart(const Canvas& canvas) {
  const unsigned ground = canvas.At(0, 0);
  Box drawn{static_cast<double>(canvas.Width()), static_cast<double>(canvas.Height()), 0, 0};
  for (int y = 0; y < canvas.Height(); ++y) {
    for (int x = 0; x < canvas.Width(); ++x) {
      if (canvas.At(x, y) == ground) continue;
      drawn.left = std::min(drawn.left, static_cast<double>(x));
      drawn.top = std::min(drawn.top, static_cast<double>(y));
      drawn.right = std::max(drawn.right, x + 1.0);
      drawn.bottom = std::max(drawn.bottom, y + 1.0);
    }
  }
  return drawn;
}

// Subdues bright colours, and gives white the tone of the paper and black that of the ink, so that a drawing
// matches the plates.
void PrintOnPaper(cairo_t* context) {
  cairo_save(context);
  const auto lay = [&](cairo_operator_t how, Colour colour, double alpha) {
    cairo_set_operator(context, how);
    SetColour(context, colour, alpha);
    cairo_paint(context);
  };
  lay(CAIRO_OPERATOR_HSL_SATURATION, FromHex(0x808080), 0.35);
  lay(CAIRO_OPERATOR_MULTIPLY, kPaper, 1);
  lay(CAIRO_OPERATOR_LIGHTEN, kInk, 1);
  cairo_restore(context);
}

std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

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

std::string DrawnAsJpeg(const std::string& path) {
  const std::unique_ptr<RsvgHandle, Unref> drawing(rsvg_handle_new_from_file(path.c_str(), nullptr));
  if (!drawing) throw make_data::Obstacle("The drawing " + path + " cannot be read.");

  // The first drawing finds the extent, which may exceed the drawing's page. No drawing uses this ground.
  const Canvas trial(FromHex(0x01FE02), 2 * kWidth, 2 * kHeight);
  Render(drawing.get(), trial, {kWidth / 2.0, kHeight / 2.0, kWidth, kHeight}, path);
  const Box drawn = DrawnPart(trial);
  if (drawn.right <= drawn.left) throw make_data::Obstacle("The drawing " + path + " is empty.");

  const double scale = std::min((kInside.Width() - 2 * kMargin) / drawn.Width(),
                                (kInside.Height() - 2 * kMargin) / drawn.Height());
  const Canvas canvas(FromHex(0xFFFFFF));
  Render(drawing.get(), canvas,
         {(kWidth - drawn.Width() * scale) / 2 - (drawn.left - kWidth / 2.0) * scale,
          (kHeight - drawn.Height() * scale) / 2 - (drawn.top - kHeight / 2.0) * scale, kWidth * scale,
          kHeight * scale},
         path);
  PrintOnPaper(canvas.Context());
  DrawFrame(canvas.Context());
  return canvas.AsJpeg();
}

std::string ArtistOf(const std::string& path) {
  const std::string text = FileText(path);
  std::string_view creator = text;
  creator.remove_prefix(std::min(creator.find("<dc:creator"), creator.size()));
  creator = creator.substr(0, creator.find("</dc:creator>"));
  const std::string_view opening = "<dc:title>";
  const std::size_t start = creator.find(opening);
  if (start == std::string_view::npos) return {};
  creator.remove_prefix(start + opening.size());
  std::string artist = make_data::PlainWords(creator.substr(0, creator.find('<')));
  // An address after the name stays private, and a field cannot contain a quote.
  if (const std::size_t address = artist.find(" ("); address != std::string::npos) artist.resize(address);
  std::replace(artist.begin(), artist.end(), '"', '\'');
  return artist == "Anonymous" ? "" : artist;
}

std::vector<Plate> ClipArt() {
  if (!std::filesystem::exists(kFolder)) {
    throw make_data::Obstacle(
        "The drawings for the gallery are missing. Install openclipart-svg (apt-get install openclipart-svg) "
        "and run this again.");
  }
  std::vector<Plate> drawings;
  for (const Section& section : ReadSections(WrittenTable("clip_art.txt"))) {
    const std::string path = kFolder + section.Value("file");
    std::string artist = section.Value("artist");
    if (artist.empty()) artist = ArtistOf(path);
    if (artist.empty()) artist = "Open Clip Art Library";
    drawings.push_back({section.title, section.Value("shown"), artist, [path] { return DrawnAsJpeg(path); }});
  }
  return drawings;
}

std::string EndCard() {
  const Canvas canvas;
  DrawText(canvas.Context(), "End", {.size = 110, .is_italic = true}, {kWidth / 2.0, 235}, Align::kMiddle,
           kInk);
  DrawTailpiece(canvas.Context(), {kWidth / 2.0, 305}, 230, kGold);
  DrawFrame(canvas.Context());
  return canvas.AsJpeg();
}

std::string BlankPage() {
  constexpr int kPageWidth = 533;
  constexpr int kPageHeight = 363;
  return Canvas(FromHex(0xFFFFFF), kPageWidth, kPageHeight).AsJpeg();
}

}  // namespace lectern::plates
