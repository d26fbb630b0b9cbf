#include "tools/make_data/plates/gallery.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <filesystem>
#include <mutex>
#include <string_view>
#include <thread>
#include <tuple>

#include "base/files/text_encoding.h"
#include "reader/reference.h"
#include "tools/make_data/plates/book_plate.h"
#include "tools/make_data/plates/drawings.h"
#include "tools/make_data/plates/map_plate.h"
#include "tools/make_data/plates/reign_plate.h"
#include "tools/make_data/plates/sections.h"
#include "tools/make_data/plates/table_plate.h"
#include "tools/make_data/plates/tree_plate.h"
#include "tools/make_data/version_files.h"

namespace lectern::plates {

namespace fs = std::filesystem;

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

void WriteIfMissing(const fs::path& path, const std::string& bytes) {
  if (!fs::exists(path)) make_data::WriteFile(path.string(), bytes);
}

// Whether there is a picture of that name, with its ending in either case.
bool HasPicture(const fs::path& folder, const std::string& name) {
  return fs::exists(folder / (name + ".jpg")) || fs::exists(folder / (name + ".JPG"));
}

struct Record {
  int book, chapter, verse;
  std::string line;
};

// The record of one place, "Genesis 3: 6".
Record RecordOf(const Plate& plate, std::string_view place) {
  const auto read = reader::ReadReference(place);
  if (!read) throw make_data::Obstacle(plate.name + " stands beside no verse: " + std::string(place));
  const std::string line =
      "\"" + plate.name + "\",\"" + std::string(place) + "\",\"PICTURES BY: " + plate.credit + "\"";
  return {read->reference.book, read->reference.chapter, read->reference.verse, files::Encode(line) + "\r\n"};
}

// Works on all items in several threads. The first failure is thrown again when all threads have stopped.
void DoEach(std::size_t count, const std::function<void(std::size_t)>& work) {
  std::atomic<std::size_t> next = 0;
  std::exception_ptr failure;
  std::mutex guard;
  const auto take = [&] {
    try {
      for (std::size_t i = next++; i < count; i = next++) work(i);
    } catch (...) {
      next = count;
      const std::lock_guard lock(guard);
      if (!failure) failure = std::current_exception();
    }
  };
  {
    std::vector<std::jthread> others;
    for (unsigned i = 1; i < std::max(1U, std::thread::hardware_concurrency()); ++i)
      others.emplace_back(take);
    take();
  }
  if (failure) std::rethrow_exception(failure);
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
      // The page comes first in its book. In Genesis it comes after the days of creation, at the chapter's
      // end.
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

std::string PictureCatalogueText(const std::vector<Plate>& plates) {
  std::vector<Record> records;
  for (const Plate& plate : plates) {
    for (const std::string& place : Parts(plate.shown, ';')) records.push_back(RecordOf(plate, place));
  }
  std::stable_sort(records.begin(), records.end(), [](const Record& a, const Record& b) {
    return std::tie(a.book, a.chapter, a.verse) < std::tie(b.book, b.chapter, b.verse);
  });
  std::string text;
  for (const Record& record : records) text += record.line;
  return text;
}

void MakePictures(const std::string& data_folder, const make_data::Version& text) {
  const fs::path folder(data_folder);
  const fs::path pictures = folder / "pics";
  fs::create_directories(pictures);
  const Gallery gallery(text);
  std::vector<Plate> plates = gallery.Plates();
  for (Plate& drawing : ClipArt()) plates.push_back(std::move(drawing));
  DoEach(plates.size(), [&](std::size_t i) {
    const Plate& plate = plates[i];
    if (HasPicture(pictures, plate.name)) return;
    make_data::WriteFile((pictures / (plate.name + ".jpg")).string(), plate.draw());
  });
  const fs::path catalogue = folder / "pics2.dat";
  if (!fs::exists(catalogue)) make_data::WriteFile(catalogue.string(), PictureCatalogueText(plates));
  WriteIfMissing(folder / "picend.jpg", EndCard());
  WriteIfMissing(folder / "newpic.jpg", BlankPage());
}

}  // namespace lectern::plates
