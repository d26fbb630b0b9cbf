// The gallery's plates against the text: every name on a map, in a tree or in a table stands in the passage
// that the plate's title gives, and every map's names stand free of each other.
#include <cctype>
#include <gtest/gtest.h>

#include "tests/real/real_data.h"
#include "tools/make_data/plates/gallery.h"
#include "tools/make_data/plates/map_ground.h"
#include "tools/make_data/plates/map_plate.h"
#include "tools/make_data/plates/reign_plate.h"
#include "tools/make_data/plates/sections.h"
#include "tools/make_data/plates/table_plate.h"
#include "tools/make_data/plates/tree_plate.h"
#include "tools/make_data/texts.h"

namespace lectern::plates {
namespace {

const make_data::Version& Text() {
  static const make_data::Version kText = make_data::ReadKingJames();
  return kText;
}

// Editions differ in hyphens (Bethel, Beth-el), in ligatures (Judaea) and in capitals.
std::string Plain(const std::string& words) {
  std::string plain;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string_view two = std::string_view(words).substr(i, 2);
    if (two == "\u00e6" || two == "\u00c6") {
      plain += "ae";
      ++i;
    } else if (words.compare(i, 3, "\u2019") == 0) {
      plain += '\'';
      i += 2;
    } else if (words[i] != '-') {
      plain += static_cast<char>(std::tolower(static_cast<unsigned char>(words[i])));
    }
  }
  return plain;
}

bool HasWord(const std::string& text, const std::string& word) {
  const auto is_letter = [&](std::size_t i) {
    return i < text.size() && std::isalpha(static_cast<unsigned char>(text[i])) != 0;
  };
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
    if ((at == 0 || !is_letter(at - 1)) && !is_letter(at + word.size())) return true;
  }
  return false;
}

void ExpectNamesInPassage(const Section& section, const std::vector<std::string>& names) {
  const std::string words = Plain(WordsOf(section.Value("passage"), Text()));
  for (const std::string& name : names) {
    EXPECT_TRUE(HasWord(words, Plain(name))) << section.title << ": " << name;
  }
}

TEST(Plates, MapsNameWhatTheirPassageNames) {
  const MapGrounds grounds;
  for (const Section& section : MapSections()) {
    const MapPlate map(section, grounds.Of(section.Value("region")));
    std::vector<std::string> names;
    for (const Label& label : map.Labels()) {
      names.push_back(label.text);
      EXPECT_TRUE(label.is_clear) << section.title << ": " << label.text << " touches something";
      const Box sign{label.anchor.x, label.anchor.y, label.anchor.x, label.anchor.y};
      EXPECT_TRUE(label.sign_radius == 0 || kInside.Meets(sign))
          << section.title << ": " << label.text << " lies beyond the frame";
    }
    ExpectNamesInPassage(section, names);
  }
  // What waters.txt changes: a lake that was drained since, and the sea above a dam.
  const auto is_water = [&](const char* region, Place place) {
    const MapGround& ground = grounds.Of(region);
    return ground.IsWater(ground.Scale().At(place));
  };
  EXPECT_TRUE(is_water("Galilee", {35.605, 33.07}));
  EXPECT_FALSE(is_water("Nations", {33, 23.72}));
}

template <class Plate>
void ExpectGoodPlates(const char* table) {
  for (const Section& section : ReadSections(WrittenTable(table))) {
    const Plate plate(section);
    EXPECT_TRUE(plate.Fits()) << section.title;
    ExpectNamesInPassage(section, plate.Names());
  }
}

TEST(Plates, TreesAndTablesNameWhatTheirPassageNames) {
  ExpectGoodPlates<TreePlate>("trees.txt");
  ExpectGoodPlates<TablePlate>("tables.txt");
  ExpectGoodPlates<ReignPlate>("reigns.txt");
}

TEST(Plates, PlansAndThingsNamePassagesThatThereAre) {
  for (const Section& section : ReadSections(WrittenTable("drawings.txt"))) {
    EXPECT_NO_THROW(WordsOf(section.Value("passage"), Text())) << section.title;
  }
}

}  // namespace
}  // namespace lectern::plates
