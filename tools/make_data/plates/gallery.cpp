#include "tools/make_data/plates/gallery.h"

#include "tools/make_data/plates/book_plate.h"
#include "tools/make_data/plates/drawing_plate.h"
#include "tools/make_data/plates/map_plate.h"
#include "tools/make_data/plates/passage.h"
#include "tools/make_data/plates/reign_plate.h"
#include "tools/make_data/plates/table_plate.h"
#include "tools/make_data/plates/tree_plate.h"

namespace lectern::plates {

namespace {

constexpr const char* kCredit = "Lectern";
constexpr const char* kMapCredit = "Lectern; coast lines of GSHHG";

Colour GroundNamed(const std::string& name) {
  return name == "red" ? kRed : name == "green" ? kGreen : kBlue;
}

// "John 3:16" as the catalogue has it: "John 3: 16", the first verse of a passage.
std::string PlaceOf(const std::string& passage) {
  const std::size_t colon = passage.rfind(':');
  const std::size_t end = std::min(passage.find('-', colon), passage.size());
  return passage.substr(0, colon) + ": " + passage.substr(colon + 1, end - colon - 1);
}

}  // namespace

Gallery::Gallery(const make_data::Version& text) {
  RequireLettering();
  AddDrawings();
  AddMaps();
  AddTrees();
  AddTables();
  AddReigns();
  AddBooks(text);
}

void Gallery::AddDrawings() {
  for (const Section& section : ReadSections(WrittenTable("drawings.txt"))) {
    plates_.push_back({section.title, section.Value("shown"), kCredit,
                       [section] { return DrawingPlate(section).AsJpeg(); }});
  }
}

void Gallery::AddMaps() {
  for (const Section& section : MapSections()) {
    plates_.push_back({section.title, section.Value("shown"), kMapCredit, [this, &section] {
                         return MapPlate(section, grounds_.Of(section.Value("region"))).AsJpeg();
                       }});
  }
}

void Gallery::AddTrees() {
  for (const Section& section : ReadSections(WrittenTable("trees.txt"))) {
    plates_.push_back(
        {section.title, section.Value("shown"), kCredit, [section] { return TreePlate(section).AsJpeg(); }});
  }
}

void Gallery::AddTables() {
  for (const Section& section : ReadSections(WrittenTable("tables.txt"))) {
    plates_.push_back(
        {section.title, section.Value("shown"), kCredit, [section] { return TablePlate(section).AsJpeg(); }});
  }
}

void Gallery::AddReigns() {
  for (const Section& section : ReadSections(WrittenTable("reigns.txt"))) {
    plates_.push_back(
        {section.title, section.Value("shown"), kCredit, [section] { return ReignPlate(section).AsJpeg(); }});
  }
}

void Gallery::AddBooks(const make_data::Version& text) {
  for (const Section& section : ReadSections(WrittenTable("books.txt"))) {
    const Colour ground = GroundNamed(section.Value("colour"));
    for (const auto& [book, verses] : section.entries) {
      if (book == "colour") continue;
      const std::string passage = book + " " + verses;
      const std::string place = PlaceOf(passage);
      // The page opens its book. In Genesis the days of creation do, and the page closes their chapter.
      const std::string opening = book == "Genesis" ? "Genesis 1: 31" : book + " 1: 1";
      const bool is_at_opening = place == book + " 1: 1";
      plates_.push_back({BookPageName(book), is_at_opening ? opening : opening + "; " + place, kCredit,
                         [book, passage, words = WordsOf(passage, text), ground] {
                           return BookPlate(book, ShownPassage(passage), words, ground).AsJpeg();
                         }});
    }
  }
}

std::string BookPageName(const std::string& book) { return "The Book of " + book; }

}  // namespace lectern::plates
