#include "tools/make_data/plates/pictures.h"

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
#include "tools/make_data/plates/clip_art.h"
#include "tools/make_data/plates/sections.h"
#include "tools/make_data/version_files.h"

namespace lectern::plates {

namespace fs = std::filesystem;

namespace {

void WriteIfMissing(const fs::path& path, const std::string& bytes) {
  if (!fs::exists(path)) make_data::WriteFile(path.string(), bytes);
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
Record RecordOf(const Plate& plate, std::string_view place) {
  const auto read = reader::ReadReference(place);
  if (!read) throw make_data::Obstacle(plate.name + " stands beside no verse: " + std::string(place));
  const std::string line =
      "\"" + plate.name + "\",\"" + std::string(place) + "\",\"PICTURES BY: " + plate.credit + "\"";
  return {read->reference.book, read->reference.chapter, read->reference.verse, files::Encode(line) + "\r\n"};
}

// Does the work of each in several threads; the first failure is thrown again when all have stopped.
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
