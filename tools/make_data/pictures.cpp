#include "tools/make_data/pictures.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <tuple>
#include <vector>

#include "base/files/text_encoding.h"
#include "reader/reference.h"
#include "tools/make_data/drawings.h"
#include "tools/make_data/picture_table.h"
#include "tools/make_data/version_files.h"

namespace lectern::make_data {

namespace fs = std::filesystem;

namespace {

constexpr const char* kFolderOfDrawings = "/usr/share/openclipart/svg/";

void WriteIfMissing(const fs::path& path, const std::string& bytes) {
  if (!fs::exists(path)) WriteFile(path.string(), bytes);
}

// A picture of the name, its ending in whichever case.
bool HasPicture(const fs::path& folder, const std::string& name) {
  return fs::exists(folder / (name + ".jpg")) || fs::exists(folder / (name + ".JPG"));
}

struct Record {
  int book, chapter, verse;
  std::string line;
};

// The record of one place, "Genesis 3: 6".
Record RecordOf(const Drawing& drawing, std::string_view place, const std::string& artist) {
  const auto read = reader::ReadReference(place);
  if (!read) throw Obstacle("No book of scripture: " + std::string(place));
  const std::string line =
      "\"" + std::string(drawing.name) + "\",\"" + std::string(place) + "\",\"PICTURES BY: " + artist + "\"";
  return {read->reference.book, read->reference.chapter, read->reference.verse, files::Encode(line) + "\r\n"};
}

}  // namespace

std::string PictureCatalogueText(const std::string& folder) {
  std::vector<Record> records;
  for (const Drawing& drawing : kDrawings) {
    std::string artist(drawing.artist);
    if (artist.empty()) artist = ArtistOf(folder + std::string(drawing.file));
    if (artist.empty()) artist = "Open Clip Art Library";
    std::string_view left = drawing.places;
    while (!left.empty()) {
      const std::size_t end = std::min(left.find("; "), left.size());
      records.push_back(RecordOf(drawing, left.substr(0, end), artist));
      left.remove_prefix(std::min(end + 2, left.size()));
    }
  }
  std::stable_sort(records.begin(), records.end(), [](const Record& a, const Record& b) {
    return std::tie(a.book, a.chapter, a.verse) < std::tie(b.book, b.chapter, b.verse);
  });
  std::string text;
  for (const Record& record : records) text += record.line;
  return text;
}

void MakePictures(const std::string& data_folder) {
  if (!fs::exists(kFolderOfDrawings)) {
    throw Obstacle(
        "The drawings for the gallery are missing. Install openclipart-svg (apt-get install openclipart-svg) "
        "and run this again.");
  }
  const fs::path folder(data_folder);
  const fs::path pictures = folder / "pics";
  fs::create_directories(pictures);
  for (const Drawing& drawing : kDrawings) {
    const std::string name(drawing.name);
    if (HasPicture(pictures, name)) continue;
    WriteFile((pictures / (name + ".jpg")).string(),
              DrawnAsJpeg(kFolderOfDrawings + std::string(drawing.file)));
  }
  const fs::path catalogue = folder / "pics2.dat";
  if (!fs::exists(catalogue)) WriteFile(catalogue.string(), PictureCatalogueText(kFolderOfDrawings));
  WriteIfMissing(folder / "picend.jpg", EndCard());
  WriteIfMissing(folder / "newpic.jpg", BlankPage());
}

}  // namespace lectern::make_data
