// All plates of the gallery, in the order in which the catalogue has those of one verse, and their files in
// the data folder.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/make_data/plates/map_ground.h"
#include "tools/make_data/texts.h"

namespace lectern::plates {

struct Plate {
  std::string name;
  std::string shown;  // the verses that it stands beside: "Genesis 3: 6; Revelation 22: 2"
  std::string credit;
  std::function<std::string()> draw;  // the picture's file; may be called in any thread
};

class Gallery {
 public:
  // The text lends the books' pages their verses. It is not kept. An Obstacle where a package is missing.
  explicit Gallery(const make_data::Version& text);

  // They draw with what the gallery holds.
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

// The page of a book, "Psalms", as the table books.txt has it: its name on the page and in the gallery.
std::string BookPageName(const std::string& book);

// The records of all pictures in the order of the canon, and beside one verse in the order of the plates.
std::string PictureCatalogueText(const std::vector<Plate>& plates);

// Draws what is not there yet, on as many processors as there are. What is there may have been painted on,
// and is left alone.
void MakePictures(const std::string& data_folder, const make_data::Version& text);

}  // namespace lectern::plates
