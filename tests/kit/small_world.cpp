#include "tests/kit/small_world.h"

#include <filesystem>
#include <fstream>

#include "forms/bitmap.h"
#include "forms/picture.h"
#include "reader/canon.h"

namespace lectern {

namespace {

// Chapters of verses as the readers of books count them.
std::string Book(const std::vector<std::vector<std::string>>& chapters) {
  std::string text;
  for (std::size_t c = 0; c < chapters.size(); ++c) {
    text += "Chapter " + std::to_string(c + 1) + "\r\n";
    for (std::size_t v = 0; v < chapters[c].size(); ++v) {
      text += std::to_string(v + 1) + "   " + chapters[c][v] + "       \r\n";
    }
  }
  return text;
}

std::string Record(const std::vector<std::string>& fields) {
  std::string record;
  for (const std::string& field : fields) record += (record.empty() ? "\"" : ",\"") + field + "\"";
  return record + "\r\n";
}

void AddBooks(std::vector<std::pair<std::string, std::string>>& files) {
  const std::vector<std::pair<std::string, std::string>> books = {
      {"Genesis", Book({{"The river was wide.", "A tent stood by the river."},
                        {"The flock came to the well.", "And the well was deep."},
                        {"A cloud, and rain.", "The river rose."}})},
      {"Exodus", Book({{"The road led out.", "They saw the cloud."}, {"The staff and the well."}})},
      {"1 Samuel", Book({{"He heard the harp."}, {"The harp by the tent."}})},
  };
  std::string counts;
  for (const auto& [name, text] : books) {
    files.emplace_back("KJV/" + name + ".txt", text);
    files.emplace_back("NEW/N" + name + ".txt", text);
    counts += "\"" + name + "\"," + (name == "Genesis" ? "3" : "2") + "\r\n";
  }
  files.emplace_back("Genesis.txt", books.front().second);  // for the tools that read the folder itself
  files.emplace_back("KJV/1-Samuel.txt", books.back().second);
  files.emplace_back("bookschap.txt", counts);
}

void AddPictures(std::vector<std::pair<std::string, std::string>>& files) {
  const auto picture = [](int width, int height, forms::Pixel colour) {
    return forms::BmpBytes(forms::Bitmap(width, height, forms::kOpaque | colour));
  };
  std::string catalogue;
  const std::pair<const char*, const char*> kPlaces[] = {
      {"river", "Genesis 1: 1"}, {"tent", "Genesis 1: 2"},  {"flock", "Genesis 2: 1"},
      {"well", "Genesis 2: 2"},  {"cloud", "Genesis 3: 1"}, {"rain", "Genesis 3: 1"},
      {"road", "Exodus 1: 1"},   {"harp", "1 Samuel 1: 1"},
  };
  int width = 3;
  for (const auto& [name, place] : kPlaces) {
    catalogue += Record({name, place, "PICTURES BY: A. Painter"});
    files.emplace_back(std::string("pics/") + name + ".jpg", picture(++width, 4, 0x3060A0));
  }
  files.emplace_back("pics2.dat", catalogue);
  files.emplace_back("pics.dat", "PICTURES BY: A. Painter\r\n'''''''\r\nmeadow\r\nGenesis 1: 1\r\n");
  files.emplace_back("picend.jpg", picture(2, 2, 0xFFFFFF));
  files.emplace_back("newpic.jpg", picture(8, 6, 0xFFFFFF));
  for (int i = 1; i <= 5; ++i) {
    files.emplace_back("cdx" + std::to_string(i) + ".ico", picture(i, i, 0));
  }
  std::string colours;
  for (int i = 0; i < 24; ++i)
    colours += "\"" + std::to_string(i * 1000) + "\"," + std::to_string(i) + "\r\n";
  files.emplace_back("colors.dat", colours);
}

}  // namespace

std::vector<std::pair<std::string, std::string>> SmallWorld() {
  std::vector<std::pair<std::string, std::string>> files;
  AddBooks(files);
  AddPictures(files);
  files.emplace_back("codex.cfg", Record({"Georgia", "12", "Bold"}));
  const std::string words = Record({"river", "Genesis 1 1"}) + Record({"river", "Genesis 1 2"}) +
                            Record({"harp", "1 Samuel 1 1"}) + Record({"Zion", "1 Peter 2 6"});
  files.emplace_back("CONCORD.DAT", words);
  files.emplace_back("CONCORD2.DAT", words);
  files.emplace_back("conc.txt", "river\r\nwell\r\nharp\r\n");
  files.emplace_back("BKMK.DAT", Record({"river", "Exodus", "2"}));
  files.emplace_back("cdxdic.dat",
                     Record({"Harp", "Strings to play on.", "He heard the harp.", "1 Samuel 1"}) +
                         Record({"Well", "Water in the ground.", "The well was deep.", "Genesis 2"}));
  std::string questions;
  for (int i = 1; i <= 7; ++i)
    questions += Record({"Question " + std::to_string(i), "Answer " + std::to_string(i)});
  files.emplace_back("codex.trv", questions);
  for (const char* topic :
       {"bookmark", "search", "notes", "pictures", "concordance", "dictionary", "trivia", "paint"}) {
    files.emplace_back(std::string(topic) + ".txt", std::string("{\\rtf1\\ansi\\b ") + topic + "\\b0\\par}");
  }
  files.emplace_back("first.bkm", Record({"first", "Exodus", "2"}));
  files.emplace_back("first.not", "A note.\r\n");
  return files;
}

void LaySmallWorld(const std::string& folder) {
  std::filesystem::remove_all(folder);
  for (const auto& [name, bytes] : SmallWorld()) {
    const std::filesystem::path path = folder + "/" + name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
  }
}

void LayBooksToBuildFrom(const std::string& folder) {
  constexpr std::size_t kShortName = 8;
  for (const std::string_view book : reader::kCanon) {
    std::ofstream(folder + "/" + std::string(book.substr(0, kShortName)) + ".txt", std::ios::binary)
        << Book({{"The river by the tent."}});
  }
}

}  // namespace lectern
