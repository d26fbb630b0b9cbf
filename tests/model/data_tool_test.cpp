// What the data tool makes of small texts and drawings, and what it leaves alone.
#include <gtest/gtest.h>

#include "base/text/characters.h"
#include "forms/picture.h"
#include "forms/rich_text.h"
#include "reader/canon.h"
#include "tests/kit/temporary_folder.h"
#include "tools/make_data/dictionary/dictionary.h"
#include "tools/make_data/made_files.h"
#include "tools/make_data/plates/canvas.h"
#include "tools/make_data/plates/drawings.h"
#include "tools/make_data/plates/gallery.h"
#include "tools/make_data/texts.h"
#include "tools/make_data/version_files.h"
#include "tools/make_data/written_texts.h"
#include "ui/headless/headless_platform.h"

namespace lectern::make_data {
namespace {

// From a text in which a besom, a town and two names are mentioned.
std::string RecordsOf(const std::string& topics) {
  Version text{std::vector<Book>(reader::kCanon.size()), "", ""};
  text.books[0][1] = {{1, "In the beginning Amram took two besoms, and saw the town."},
                      {2, "And all that saw Beth-abara, and Amram, and Lot, cast a lot."},
                      {3, "They cast the lot, and \"Peace\" was in the house of Amram and Aaron."}};
  DictionarySources sources{
      {}, {}, ParseTopics(topics), {}, WordNumbers({{{0, 1, 1}, "<w lemma=\"strong:H04292\">besoms</w>"}})};
  ParseDefinitions("besom|A tool for \"sweeping\".\nlot|A thing drawn.\nladder|Steps.\n", sources.own);
  ParseOriginalWords(
      "$$$04292\n<entryFree><orth type=\"trans\">ma\xC5\xA3'\xC4\x83\xC5\xA3\xC3\xAA'</orth> <def>From "
      "<ref>H1</ref>; properly a "
      "{twig} or <hi>broom</hi> (as removing); also dust: - besom.</def></entryFree>\n",
      'H', sources.originals);
  return DictionaryRecords(sources, text);
}

// A word gets a verse with one of its forms, and the original word behind it; a name that is also a word,
// both.
TEST(Dictionary, DefinesTheWordsOfTheText) {
  EXPECT_EQ(RecordsOf("$$$LOT\n<lb/>→ Nephew of Amram <ref osisRef=\"Gen.1.2\">Ge 1:2</ref>\n"),
            "\"Besom\",\"A tool for 'sweeping'. Hebrew matate: a twig, or broom.\",\"In the beginning Amram "
            "took two besoms, and saw "
            "the town.\",\"Genesis 1:1\"\r\n"
            "\"Lot\",\"A thing drawn. As a name: A nephew of Amram.\",\"And all that saw Beth-abara, and "
            "Amram, and Lot, cast a lot.\","
            "\"Genesis 1:2\"\r\n");
}

// What only points to passages, to other headings or to editions is left out, and who refers to another name
// is told.
TEST(Dictionary, TakesFromTheIndexWhatCanBeReadByItself) {
  const std::string records = RecordsOf(
      "$$$AARON\n<lb/>→ Lineage of <ref osisRef=\"Gen.1.3\">Ge 1:3</ref> <lb/>→ Rod of, buds <lb/>→ (In the "
      "R. V., a priest) "
      "<lb/>→ 1. Brother of Amram' s house <lb/>→ 2. A city (ruined <lb/>→ 3. Head of a family <lb/>→ "
      "INSTANCES OF <list> <item>Amram goes "
      "home</item> </list>\n"
      "$$$BETH-ABARA\n<lb/>→ See <ref target=\"Nave:AARON\">AARON</ref>, number three\n$$$TOWN\n<lb/>→ "
      "General scriptures concerning "
      "<ref osisRef=\"Gen.1.1\">Ge 1:1</ref>\n");
  EXPECT_NE(records.find("\"Aaron\",\"1. A brother of Amram's house. 2. The head of a family.\""),
            std::string::npos)
      << records;
  EXPECT_NE(records.find("\"Beth-abara\",\"The same as Aaron. The head of a family.\",\"And all that"),
            std::string::npos)
      << records;
  EXPECT_EQ(records.find("\"Town\""), std::string::npos) << records;
}

TEST(BookFiles, OfAPersonAreNotReplacedByTheStandIn) {
  const TemporaryFolder folder;
  folder.Write("NGenesis.txt", "Chapter 1\r\n1   My own text.       \r\n");
  folder.Write("NExodus.txt", "Chapter 1 (Stand-in)\r\n1   Made before.       \r\n");
  folder.Write("NLeviticus.txt", "");
  folder.Write("Numbers.txt", "my copy");
  Version stand_in{std::vector<Book>(reader::kCanon.size()), "Stand-in", "free"};
  for (std::size_t book = 0; book < 4; ++book) stand_in.books[book][1][2] = "(Made now.";
  for (int twice = 0; twice < 2; ++twice) {
    WriteStandIn(stand_in, folder.Path(), "N");
    for (const char* name : {"NGenesis.txt", "Genesis.txt"}) {
      EXPECT_EQ(folder.Read(name), "Chapter 1\r\n1   My own text.       \r\n") << name;
    }
    for (const char* name : {"NExodus.txt", "NLeviticus.txt", "NNumbers.txt", "Exodus.txt"}) {
      EXPECT_EQ(folder.Read(name),
                "Chapter 1 (Stand-in)\r\n1   [ not in this version]       \r\n"
                "2   ( Made now.       \r\nStand-in, free\r\n")
          << name;
    }
    EXPECT_EQ(folder.Read("Numbers.txt"), "my copy");
  }
}

// Brings files in as the tool does; what it says stays.
std::vector<std::string> BringInFiles(const TemporaryFolder& folder, const std::string& trivia,
                                      const std::string& catalogue) {
  const MakingFolder making(folder.Path());
  const auto make = [&](const std::string& name, const std::string& bytes) {
    std::filesystem::create_directories(std::filesystem::path(making.Path() + "/" + name).parent_path());
    WriteFile(making.Path() + "/" + name, bytes);
  };
  make("codex.trv", trivia);
  make("NEW/NGenesis.txt", "Chapter 1 (World English Bible)\r\n");
  make("pics/owl.jpg", "drawn");
  make("pics/ark.jpg", "drawn");
  make("pics2.dat", catalogue);
  return BringIn(making.Path(), folder.Path());
}

TEST(MadeFiles, AreReplacedAndAPersonsOwnStay) {
  const std::string owl = "\"owl\",\"Genesis 1: 1\",\"\"\r\n";
  const std::string ark = "\"ark\",\"Genesis 6: 14\",\"\"\r\n";
  const TemporaryFolder folder;
  // An earlier tool left no list.
  folder.Write("making/mine.txt", "mine");
  folder.Write("codex.trv", "perhaps edited");
  folder.Write("NEW/NGenesis.txt", "My own text.");
  folder.Write("pics/OWL.jpg", "BM painted");
  folder.Write("pics2.dat", owl);
  EXPECT_EQ(BringInFiles(folder, "first", owl + ark), std::vector<std::string>{});
  EXPECT_EQ(folder.Read("codex.trv"), "first");
  EXPECT_EQ(folder.Read("backup/codex.trv"), "perhaps edited");
  EXPECT_EQ(folder.Read("NEW/NGenesis.txt"), "My own text.");
  EXPECT_EQ(folder.Read("pics/OWL.jpg"), "BM painted");
  EXPECT_EQ(folder.Read("pics2.dat"), owl + ark);
  EXPECT_EQ(folder.Read("making/mine.txt"), "mine");
  // From now on it is known what was changed. A picture that was taken out of the catalogue stays out.
  EXPECT_EQ(BringInFiles(folder, "second", owl), std::vector<std::string>{});
  EXPECT_EQ(folder.Read("codex.trv"), "second");
  folder.Write("codex.trv", "edited");
  folder.Write("pics2.dat", owl);
  EXPECT_EQ(BringInFiles(folder, "third", owl + ark), std::vector<std::string>{"codex.trv"});
  EXPECT_EQ(folder.Read("codex.trv"), "edited");
  EXPECT_EQ(folder.Read("pics2.dat"), owl);
  // Nothing is written through a link.
  std::filesystem::rename(folder.Path() + "/pics", folder.Path() + "/elsewhere");
  std::filesystem::create_symlink("elsewhere", folder.Path() + "/pics");
  std::filesystem::remove(folder.Path() + "/elsewhere/ark.jpg");
  EXPECT_THROW(BringInFiles(folder, "fourth", owl), Obstacle);
  EXPECT_EQ(folder.Read("elsewhere/ark.jpg"), "(missing)");
}

TEST(Pictures, OfTheKeeperStayAsTheyAre) {
  const TemporaryFolder folder;
  const std::string catalogue = "\"mine\",\"Genesis 1: 1\",\"PICTURES BY: me\"\r\n";
  folder.Write("pics2.dat", catalogue);
  folder.Write("picend.jpg", "my card");
  folder.Write("pics/mine.jpg", "mine");
  const Version text = ReadKingJames();
  std::vector<plates::Plate> pictures = plates::Gallery(text).Plates();
  for (const plates::Plate& drawing : plates::ClipArt()) pictures.push_back(drawing);
  for (const plates::Plate& picture : pictures) {
    if (picture.name != "owl" && picture.name != "lion") {
      folder.Write("pics/" + picture.name + ".jpg", "painted on");
    }
  }
  folder.Write("pics/lion.JPG", "painted");
  plates::MakePictures(folder.Path(), text);
  EXPECT_EQ(folder.Read("pics2.dat"), catalogue);
  EXPECT_EQ(folder.Read("picend.jpg"), "my card");
  EXPECT_EQ(folder.Read("pics/mine.jpg"), "mine");
  EXPECT_EQ(folder.Read("pics/The First Day.jpg"), "painted on");
  EXPECT_EQ(folder.Read("pics/lion.jpg"), "(missing)");
  EXPECT_EQ(headless::DecodePicture(folder.Read("pics/owl.jpg")).Width(), 640);
  EXPECT_EQ(headless::DecodePicture(folder.Read("newpic.jpg")).Height(), 363);
}

TEST(Pictures, AreDrawnAsLargeAsFits) {
  const TemporaryFolder folder;
  folder.Write("small.svg",
               "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 100 100'>"
               "<rect x='80' y='80' width='10' height='20' fill='#ff0000'/></svg>");
  const forms::Picture drawn = headless::DecodePicture(plates::DrawnAsJpeg(folder.Path() + "/small.svg"));
  const auto is_red = [&](int x, int y) {
    const forms::Pixel pixel = drawn->At(x, y);
    return (pixel & 0xFF) > 150 && ((pixel >> 8) & 0xFF) < 80;
  };
  ASSERT_EQ(drawn.Width(), 640);
  ASSERT_EQ(drawn.Height(), 436);
  EXPECT_TRUE(is_red(320, 218) && is_red(320 - 80, 50) && is_red(320 + 80, 390));
  EXPECT_FALSE(is_red(320 - 110, 218) || is_red(320, 26));
  folder.Write("empty.svg", "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'/>");
  folder.Write("none.svg", "no drawing");
  EXPECT_THROW(plates::DrawnAsJpeg(folder.Path() + "/empty.svg"), Obstacle);
  EXPECT_THROW(plates::DrawnAsJpeg(folder.Path() + "/none.svg"), Obstacle);
}

TEST(SmoothPath, BendsNowhereOnAStraightLine) {
  const plates::Canvas canvas;
  const plates::Point points[] = {{10, 50}, {20, 50}, {40, 50}, {500, 400}};
  plates::SmoothPath(canvas.Context(), std::span(points).first(3));
  double left = 0, top = 0, right = 0, bottom = 0;
  cairo_path_extents(canvas.Context(), &left, &top, &right, &bottom);
  EXPECT_EQ((std::vector{left, top, right, bottom}), (std::vector{10.0, 50.0, 40.0, 50.0}));
}

TEST(Pictures, CreditTheArtistWhomTheDrawingNames) {
  const TemporaryFolder folder;
  for (const auto& [name, artist] :
       std::vector<std::pair<std::string, std::string>>{{" B. &amp; J.\n Doe ", "B. & J. Doe"},
                                                        {"J. Doe (doe@example.org)", "J. Doe"},
                                                        {"the \"Owl\"", "the 'Owl'"},
                                                        {"Anonymous", ""}}) {
    folder.Write("a.svg", "<svg><metadata><dc:title>A bird</dc:title><dc:creator><cc:Agent><dc:title>" +
                              name + "</dc:title></cc:Agent></dc:creator></metadata></svg>");
    EXPECT_EQ(plates::ArtistOf(folder.Path() + "/a.svg"), artist);
  }
  folder.Write("a.svg", "<svg><metadata><dc:title>A bird</dc:title><dc:creator/></metadata></svg>");
  EXPECT_EQ(plates::ArtistOf(folder.Path() + "/a.svg"), "");
}

TEST(HelpTopics, AreMadeFromTheirMarks) {
  const forms::RichText page = forms::ReadRtf(
      RichTextOf("# Title\n\nOne *two*\nthree: \\* or {\n\n## Part\n* first **Go**\nmore\n* é"));
  EXPECT_EQ(page.text, "Title\r\nOne two three: * or {\r\n\r\nPart\r\n•  first Go more\r\n•  é\r\n");
  const auto style = [&page](const std::string& word) {
    return page.runs.At(text::Length(page.text.substr(0, page.text.find(word))));
  };
  EXPECT_EQ(style("two").italic, true);
  EXPECT_EQ(style("three"), forms::TextStyle{});
  EXPECT_EQ(style("Part").size, 12);
  EXPECT_EQ(style("Go").bold, true);
  EXPECT_EQ(style("more"), forms::TextStyle{});
}

}  // namespace
}  // namespace lectern::make_data
