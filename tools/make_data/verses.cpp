#include "tools/make_data/verses.h"

#include <array>
#include <sstream>

#include "base/text/letter_case.h"
#include "reader/canon.h"

namespace lectern::make_data {

namespace {

// The abbreviations of each book, in the order of the canon: those of the plain-text source and those that
// OSIS documents use.
constexpr std::array<const char*, 66> kAbbreviations = {
    "Ge Gen",    "Exo Exod",  "Lev",      "Num",        "Deu Deut",   "Josh",      "Jdgs Judg", "Ruth",
    "1Sm 1Sam",  "2Sm 2Sam",  "1Ki 1Kgs", "2Ki 2Kgs",   "1Chr",       "2Chr",      "Ezra",      "Neh",
    "Est Esth",  "Job",       "Psa Ps",   "Prv Prov",   "Eccl",       "SSol Song", "Isa",       "Jer",
    "Lam",       "Eze Ezek",  "Dan",      "Hos",        "Joel",       "Amos",      "Obad",      "Jonah",
    "Mic",       "Nahum Nah", "Hab",      "Zep Zeph",   "Hag",        "Zec Zech",  "Mal",       "Mat Matt",
    "Mark",      "Luke",      "John",     "Acts",       "Rom",        "1Cor",      "2Cor",      "Gal",
    "Eph",       "Phi Phil",  "Col",      "1Th 1Thess", "2Th 2Thess", "1Tim",      "2Tim",      "Titus",
    "Phmn Phlm", "Heb",       "Jas",      "1Pet",       "2Pet",       "1Jn 1John", "2Jn 2John", "3Jn 3John",
    "Jude",      "Rev",
};

std::map<std::string, int> Positions() {
  std::map<std::string, int> positions;
  constexpr std::array<const char*, 4> kRoman = {"", "I ", "II ", "III "};
  for (std::size_t i = 0; i < reader::kCanon.size(); ++i) {
    const int position = static_cast<int>(i);
    const std::string name(reader::kCanon[i]);
    positions[text::Lower(name)] = position;
    if (name[0] >= '1' && name[0] <= '3') {
      positions[text::Lower(kRoman[static_cast<std::size_t>(name[0] - '0')] + name.substr(2))] = position;
    }
    std::istringstream abbreviations(kAbbreviations[i]);
    for (std::string abbreviation; abbreviations >> abbreviation;) {
      positions[text::Lower(abbreviation)] = position;
    }
  }
  positions["revelation of john"] = positions["revelation"];
  return positions;
}

}  // namespace

std::size_t Version::VerseCount() const {
  std::size_t count = 0;
  for (const Book& book : books) {
    for (const auto& [number, chapter] : book) count += chapter.size();
  }
  return count;
}

int BookPosition(const std::string& name) {
  static const std::map<std::string, int> kPositions = Positions();
  const auto found = kPositions.find(text::Lower(name));
  return found == kPositions.end() ? -1 : found->second;
}

}  // namespace lectern::make_data
