#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "forms/figures.h"
#include "forms/picture_box.h"
#include "forms/picture_file.h"
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

std::string Number(std::uint32_t value, int size) {  // the low byte comes last
  std::string bytes;
  for (int i = size - 1; i >= 0; --i) bytes.push_back(static_cast<char>(value >> (8 * i)));
  return bytes;
}

std::string Little(std::uint32_t value, int size) {
  std::string bytes = Number(value, size);
  std::reverse(bytes.begin(), bytes.end());
  return bytes;
}

// The skeleton of a JPEG, without anything in its scans.
std::string JpegOf(char frame, std::uint32_t width, std::uint32_t height, int scans) {
  std::string bytes = "\xFF\xD8\xFF";
  bytes +=
      frame + Number(11, 2) + '\x08' + Number(height, 2) + Number(width, 2) + std::string("\1\1\x11\0", 4);
  for (int i = 0; i < scans; ++i) bytes += "\xFF\xDA" + Number(8, 2) + std::string("\1\1\0\0\0\0\xFF\0", 8);
  return bytes + "\xFF\xD9";
}

std::string PngOf(std::uint32_t width, std::uint32_t height) {
  return "\x89PNG\r\n\x1A\n" + Number(13, 4) + "IHDR" + Number(width, 4) + Number(height, 4) +
         std::string("\x08\0\0\0\0CRC.", 9);
}

std::string GifOf(std::uint32_t width, std::uint32_t height, std::uint32_t part_width) {
  return "GIF89a" + Little(width, 2) + Little(height, 2) + std::string(3, '\0') + "," + Little(0, 4) +
         Little(part_width, 2) + Little(1, 2) + std::string("\0\2\1\1\0", 5) + ";";
}

std::string IconOf(const std::string& content) {
  return std::string("\0\0\1\0\1\0", 6) + std::string(12, '\1') + Little(22, 4) + content;
}

// A few bytes can promise any size and any amount of work.
TEST(PictureFile, CostsNoMoreThanIsAllowed) {
  const std::string header = BmpBytes(Bitmap(1, 1)).substr(14, 4);
  const std::pair<bool, std::string> cases[] = {
      {true, JpegOf('\xC0', 8000, 6000, 1)},
      {false, JpegOf('\xC0', 65000, 65000, 1)},
      {true, JpegOf('\xC2', 3000, 2500, 12)},
      {false, JpegOf('\xC2', 3000, 2500, 3000)},
      {false, JpegOf('\xC2', 6000, 4000, 2)},
      {false, JpegOf('\xC9', 6000, 4000, 1)},
      {true, PngOf(4000, 3000)},
      {false, PngOf(60000, 60000)},
      {false, PngOf(1, 1) + PngOf(60000, 60000).substr(8)},
      {true, GifOf(640, 480, 640)},
      {false, GifOf(65535, 65535, 1)},
      {false, GifOf(1, 65535, 65535) + "extra"},
      {true, BmpBytes(Bitmap(3000, 1000))},
      {false, BmpBytes(Bitmap(1, 1)).replace(18, 8, Little(16400, 4) + Little(16400, 4))},
      {true, IconOf(header + Little(32, 4) + Little(64, 4))},
      {false, IconOf(header + Little(60000, 4) + Little(60000, 4))},
      {false, IconOf(PngOf(60000, 60000))},
      {false, "P6 1 1 255 aaa"},
  };
  for (const auto& [is_taken, bytes] : cases) {
    EXPECT_EQ(ReadPictureFile(bytes).has_value(), is_taken) << bytes.substr(0, 40);
    if (is_taken) continue;
    EXPECT_EQ(ErrorOf([&bytes = bytes] { headless::DecodePicture(bytes); }), 481);
  }
  // Texts that unpack to megabytes, and pictures behind the first one, are not handed to a decoder.
  EXPECT_EQ(ReadPictureFile(PngOf(1, 1) + Number(2, 4) + "zTXt12CRC.")->reduced, PngOf(1, 1));
  const std::string gif = GifOf(1, 1, 1);
  EXPECT_EQ(ReadPictureFile(gif.substr(0, gif.size() - 1) + GifOf(9, 9, 9).substr(13))->reduced, gif);
}

// It is held small. Its pixels are those of the file that was loaded.
TEST(LargePicture, IsReadAgainForItsPixels) {
  constexpr Pixel kRed = kOpaque | 0xFF;
  TestWindow test;
  Bitmap bitmap(2600, 1300);
  bitmap.Set(2599, 1299, kRed);
  test.folder.Write("large.jpg", BmpBytes(bitmap));
  const Picture picture = test.form.LoadPicture("large.jpg");
  test.files.Replace("large.jpg", "another", files::Lasting::kNo);
  EXPECT_EQ(picture.Width(), 2600);
  ASSERT_NE(picture.Source(), nullptr);
  EXPECT_EQ(picture.Source()->Small()->Width(), 1300);
  EXPECT_EQ(picture->At(2599, 1299), kRed);
}

}  // namespace
}  // namespace lectern::forms
