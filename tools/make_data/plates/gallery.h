// All plates of the gallery, and their files in the data folder. Plates of the same verse are in the order of
// the catalogue.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/make_data/plates/map_ground.h"
#include "tools/make_data/texts.h"

namespace lectern::plates {

struct Plate {
  std::string name;
  std::string shown;  // the verses that it illustrates: "Genesis 3: 6; Revelation 22: 2"
  std::string credit;
  std::function<std::string()> draw;  // the picture's file; may be called in any thread
};

class Gallery {
 public:
  // The verses on the books' pages are taken from the text, which is not kept. Throws an Obstacle if a
  // package is missing.
  explicit Gallery(const make_data::Version& text);

  // The plates use data of the gallery, which must outlive them.
  const std::vector<Plate>& Plates() const { return plates_; }

 private:
  void AddDrawings();
  void AddMaps();
  void AddTrees();
  void AddTables();
  void AddReigns();
  void AddBooks(const make_data::Version& text);

  MapGrounds grounds_;
  std::vector<Plate> plates_;
};

// The name of a book's page in books.txt, on the page and in the gallery.
std::string BookPageName(const std::string& book);

// The records of all pictures in the order of the canon. Pictures of the same verse are in the order of the
// plates.
std::string PictureCatalogueText(const std::vector<Plate>& plates);

// Draws the missing pictures, on all processors. An existing picture stays, as a person may have painted on
// it.
void MakePictures(const std::string& data_folder, const make_data::Version& text);

}  // namespace lectern::plates
