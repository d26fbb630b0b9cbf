#include <gtest/gtest.h>

#include "forms/figures.h"
#include "forms/picture_box.h"
#include "tests/kit/test_window.h"
#include "ui/headless/headless_platform.h"

namespace lectern::forms {
namespace {

constexpr Pixel kRedPixel = kOpaque | 255;

// The bitmap's rows, "#" where a pixel is not white.
std::vector<std::string> Drawn(const Bitmap& bitmap) {
  std::vector<std::string> rows;
  for (int y = 0; y < bitmap.Height(); ++y) {
    rows.emplace_back();
    for (int x = 0; x < bitmap.Width(); ++x) rows.back() += bitmap.At(x, y) == kWhitePixel ? '.' : '#';
  }
  return rows;
}

TEST(Bitmap, DrawsRoundDotsAndNothingOutside) {
  Bitmap five(7, 7);
  five.Dot(3, 3, 5, 0, RasterOperation::kCopyPen);
  EXPECT_EQ(Drawn(five), (std::vector<std::string>{".......", "..###..", ".#####.", ".#####.", ".#####.",
                                                   "..###..", "......."}));
  Bitmap four(6, 6);
  four.Dot(3, 3, 4, 0, RasterOperation::kCopyPen);
  EXPECT_EQ(Drawn(four),
            (std::vector<std::string>{"......", "..##..", ".####.", ".####.", "..##..", "......"}));
  Bitmap edge(3, 3);
  const Area touched = edge.Dot(0, 2, 3, 0, RasterOperation::kCopyPen);
  EXPECT_EQ(Drawn(edge), (std::vector<std::string>{"...", "##.", "##."}));
  EXPECT_EQ(touched.right, 2);
  EXPECT_TRUE(edge.Dot(-50, 7, 3, 0, RasterOperation::kCopyPen).Empty());
}

TEST(Bitmap, CombinesByTheNumberOfTheOperation) {
  // Destination 1100, pen 1010 in the low bits: what each operation leaves of them.
  const int expected[] = {0b0000, 0b0001, 0b0100, 0b0101, 0b0010, 0b0011, 0b0110, 0b0111,
                          0b1000, 0b1001, 0b1100, 0b1101, 0b1010, 0b1011, 0b1110, 0b1111};
  for (int number = 1; number <= 16; ++number) {
    const Pixel result = Combine(static_cast<RasterOperation>(number), 0b1100, 0b1010);
    EXPECT_EQ(static_cast<int>(result & 0xF), expected[number - 1]) << number;
    EXPECT_EQ(result >> 24, 255U);
  }
}

TEST(Bitmap, StretchesToTheNearestPixel) {
  Bitmap source(2, 2);
  source.Set(0, 0, kRedPixel);
  source.Set(1, 1, kOpaque);
  Bitmap larger(5, 5);
  larger.Stretch(source, 1, 0, 4, 4);
  EXPECT_EQ(larger.At(0, 0), kWhitePixel);
  EXPECT_EQ(larger.At(1, 0), kRedPixel);
  EXPECT_EQ(larger.At(2, 1), kRedPixel);
  EXPECT_EQ(larger.At(3, 1), kWhitePixel);
  EXPECT_EQ(larger.At(4, 3), kOpaque);
  EXPECT_EQ(larger.At(4, 4), kWhitePixel);
}

// A box of 8 by 8 pixels on a picture that is red at the top left.
class PictureBoxTest : public testing::Test {
 protected:
  PictureBoxTest() {
    box.Width = 8 * kTwipsPerPixel;
    box.Height = 8 * kTwipsPerPixel;
    box.ScaleMode = kScalePixels;
    box.ForeColor = kBlack;
    Bitmap background(4, 4);
    background.Set(0, 0, kRedPixel);
    picture = Picture(background);
    box.Picture = picture;
  }

  TestWindow test;
  PictureBox box{test.form, "picbox"};
  Picture picture;
};

TEST_F(PictureBoxTest, DrawsOnTheScreenOnlyUntilAutoRedrawIsOn) {
  box.PSet(5, 5);
  EXPECT_EQ(box.Shown().At(5, 5), kOpaque);
  EXPECT_EQ(box.Image()->At(5, 5), kWhitePixel);
  EXPECT_EQ(box.Image()->At(0, 0), kRedPixel);

  box.AutoRedraw = true;
  box.PSet(6, 6);
  EXPECT_EQ(box.Shown().At(5, 5), kOpaque);  // what was drawn before is seen still
  EXPECT_EQ(box.Image()->At(6, 6), kOpaque);
  EXPECT_EQ(box.Image()->At(5, 5), kWhitePixel);
  EXPECT_FALSE(box.Image() == box.Image());  // each snapshot is a picture of its own

  box.Width = 9 * kTwipsPerPixel;  // the screen's drawing goes, the persistent one stays
  EXPECT_EQ(box.Shown().At(5, 5), kWhitePixel);
  EXPECT_EQ(box.Shown().At(6, 6), kOpaque);
  EXPECT_EQ(box.Shown().Width(), 9);
}

TEST_F(PictureBoxTest, ForgetsItsDrawingsWithAPictureAndItsScreenWithItsWindow) {
  box.AutoRedraw = true;
  box.PSet(6, 6);
  box.Picture = picture;  // the same picture is a write all the same
  EXPECT_EQ(box.Shown().At(6, 6), kWhitePixel);

  test.form.Visible = true;
  box.AutoRedraw = false;
  box.PSet(6, 6);
  test.form.Visible = false;
  EXPECT_EQ(box.Shown().At(6, 6), kWhitePixel);
}

TEST_F(PictureBoxTest, GrowsToItsPictureAndShowsMoreOfItInNewRoom) {
  box.AutoSize = true;
  box.Picture = Picture(Bitmap(20, 10, kRedPixel));
  EXPECT_EQ(box.Width, 300);
  EXPECT_EQ(box.Height, 150);
  box.AutoSize = false;
  box.Width = 60;
  EXPECT_EQ(box.Image().Width(), 4);
  box.Width = 330;
  EXPECT_EQ(box.Image()->At(19, 9), kRedPixel);
  EXPECT_EQ(box.Image()->At(20, 9), kWhitePixel);
  EXPECT_EQ(ErrorOf([&] { box.DrawWidth = 0; }), 380);
  EXPECT_EQ(ErrorOf([&] { box.PaintPicture({}, 0, 0, 5, 5); }), 481);
  box.PSet(1e300, -1e300);  // far outside is nowhere

  PictureBox panel(test.form, "panel");
  panel.Picture = picture;
  panel.Width = 60;
  panel.Height = 60;
  EXPECT_EQ(panel.Shown().At(0, 0), kRedPixel);  // a picture that was there before there was room for it
}

TEST(Image, TakesThePicturesSizeUnlessItStretches) {
  TestWindow test;
  Image image(test.form, "imgp");
  const Picture picture{Bitmap(20, 10)};
  image.Picture = picture;
  image.Width = 1;
  image.Picture = picture;
  EXPECT_EQ(image.Width, 300);
  image.Stretch = true;
  image.Width = 45;
  image.Picture = Picture(Bitmap(2, 2));
  EXPECT_EQ(image.Width, 45);
}

// As large as a scanned page at its full resolution. A few hundred bytes can promise any size.
TEST(LargePicture, IsTakenUpToALimit) {
  EXPECT_EQ(headless::DecodePicture(BmpBytes(Bitmap(8000, 2))).Width(), 8000);
  std::string bytes = BmpBytes(Bitmap(1, 1));
  for (const std::size_t place : {18U, 22U})
    bytes.replace(place, 4, std::string("\x10\x40\0\0", 4));  // 16,400
  EXPECT_EQ(ErrorOf([&] { headless::DecodePicture(bytes); }), 481);
}

}  // namespace
}  // namespace lectern::forms
