#include "tools/make_data/pictures.h"

#include <gtest/gtest.h>

#include "tests/kit/test_window.h"
#include "tools/make_data/drawings.h"
#include "tools/make_data/picture_table.h"
#include "tools/make_data/verses.h"
#include "ui/headless/headless_platform.h"

namespace lectern::make_data {
namespace {

TEST(Pictures, OfTheKeeperStayAsTheyAre) {
  const TemporaryFolder folder;
  folder.Write("pics2.dat", "\"mine\",\"Genesis 1: 1\",\"PICTURES BY: me\"\r\n");
  folder.Write("picend.jpg", "my card");
  folder.Write("pics/mine.jpg", "mine");
  for (const Drawing& drawing : kDrawings) {
    const std::string name(drawing.name);
    if (name != "ant" && name != "crown") folder.Write("pics/" + name + ".jpg", "painted on");
  }
  folder.Write("pics/crown.JPG", "painted");
  MakePictures(folder.Path());
  EXPECT_EQ(folder.Read("pics2.dat"), "\"mine\",\"Genesis 1: 1\",\"PICTURES BY: me\"\r\n");
  EXPECT_EQ(folder.Read("picend.jpg"), "my card");
  EXPECT_EQ(folder.Read("pics/mine.jpg"), "mine");
  EXPECT_EQ(folder.Read("pics/bee.jpg"), "painted on");
  EXPECT_EQ(folder.Read("pics/crown.jpg"), "(missing)");
  EXPECT_EQ(headless::DecodePicture(folder.Read("pics/ant.jpg")).Width(), 640);
  EXPECT_EQ(headless::DecodePicture(folder.Read("newpic.jpg")).Height(), 363);
}

// Draws a file and says where on the page it has colour.
TEST(Pictures, AreDrawnAsLargeAsFits) {
  const TemporaryFolder folder;
  folder.Write("small.svg",
               "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 100 100'>"
               "<rect x='80' y='80' width='10' height='20' fill='#ff0000'/></svg>");
  const forms::Picture drawn = headless::DecodePicture(DrawnAsJpeg(folder.Path() + "/small.svg"));
  const auto is_red = [&](int x, int y) {
    const forms::Pixel pixel = drawn->At(x, y);
    return (pixel & 0xFF) > 200 && ((pixel >> 8) & 0xFF) < 80;
  };
  ASSERT_EQ(drawn.Width(), 640);
  ASSERT_EQ(drawn.Height(), 480);
  EXPECT_TRUE(is_red(320, 240));
  EXPECT_TRUE(is_red(320 - 100, 30) && is_red(320 + 100, 450));
  EXPECT_FALSE(is_red(320 - 120, 240) || is_red(320, 16));

  folder.Write("empty.svg", "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'/>");
  folder.Write("none.svg", "no drawing");
  EXPECT_THROW(DrawnAsJpeg(folder.Path() + "/empty.svg"), Obstacle);
  EXPECT_THROW(DrawnAsJpeg(folder.Path() + "/none.svg"), Obstacle);
}

TEST(Pictures, CreditTheArtistWhomTheDrawingNames) {
  const TemporaryFolder folder;
  const auto artist = [&](const std::string& creator) {
    folder.Write("a.svg", "<svg><metadata><dc:title>A bird</dc:title>" + creator + "</metadata></svg>");
    return ArtistOf(folder.Path() + "/a.svg");
  };
  const auto named = [](const std::string& name) {
    return "<dc:creator><cc:Agent><dc:title>" + name + "</dc:title></cc:Agent></dc:creator>";
  };
  EXPECT_EQ(artist(named(" B. &amp; J.\n Doe ")), "B. & J. Doe");
  EXPECT_EQ(artist(named("J. Doe (doe@example.org)")), "J. Doe");
  EXPECT_EQ(artist(named("the \"Owl\"")), "the 'Owl'");
  EXPECT_EQ(artist(named("Anonymous")), "");
  EXPECT_EQ(artist("<dc:creator/>"), "");
  EXPECT_EQ(artist(""), "");
}

}  // namespace
}  // namespace lectern::make_data
