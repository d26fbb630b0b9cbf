// A picture as large as a scanned page at its full resolution goes through the strip and the viewer as it is.
#include <gtest/gtest.h>

#include "forms/image.h"
#include "tests/kit/test_window.h"
#include "ui/headless/driver.h"
#include "ui/headless/headless_platform.h"

namespace lectern {
namespace {

// A BMP of one colour, packed so that it takes hundreds of bytes a row of thousands.
std::string PackedBmp(int width, int height) {
  std::string bytes;
  const auto put = [&bytes](unsigned value, int count) {
    for (int i = 0; i < count; ++i, value >>= 8) bytes.push_back(static_cast<char>(value & 0xFF));
  };
  std::string rows;
  for (int y = 0; y < height; ++y) {
    for (int left = width; left > 0; left -= 255) rows += {static_cast<char>(std::min(left, 255)), '\0'};
    rows += {'\0', '\0'};  // end of the row
  }
  rows += {'\0', '\1'};  // end of the picture
  constexpr unsigned kHeaders = 14 + 40 + 4 * 256;
  bytes.append("BM");
  put(kHeaders + static_cast<unsigned>(rows.size()), 4);
  put(0, 4);
  put(kHeaders, 4);
  put(40, 4);
  put(static_cast<unsigned>(width), 4);
  put(static_cast<unsigned>(height), 4);
  put(1, 2);  // planes
  put(8, 2);  // bits a pixel
  put(1, 4);  // packed in runs
  put(static_cast<unsigned>(rows.size()), 4);
  put(0, 16);
  for (int i = 0; i < 256; ++i) put(0x204060, 4);
  return bytes + rows;
}

TEST(LargePicture, IsShownInTheStripAndTheViewer) {
  constexpr int kSide = 8000;
  const TemporaryFolder folder;
  folder.Write("pics2.dat", "\"page\",\"Genesis 1: 1\",\"A\"\r\n");
  folder.Write("pics/page.jpg", PackedBmp(kSide, kSide));
  folder.Write("picend.jpg", PackedBmp(1, 1));
  headless::Driver driver(folder.Path(), [](const std::string& line) { ADD_FAILURE() << line; });
  driver.Execute("click Form1.imgp(0)");
  const auto* pick = dynamic_cast<forms::Image*>(driver.Program().Touch("Form1")->Find("pick"));
  ASSERT_EQ(pick->Picture().Width(), kSide);
  EXPECT_EQ(pick->Picture().Height(), kSide);
  EXPECT_EQ(pick->Picture()->At(kSide - 1, kSide - 1), 0xFF604020U);
}

// A few hundred bytes can promise any size.
TEST(LargePicture, BeyondAllReasonIsNone) {
  std::string bytes = PackedBmp(1, 1);
  for (const std::size_t place : {18U, 22U})
    bytes.replace(place, 4, std::string("\x10\x40\0\0", 4));  // 16,400
  EXPECT_EQ(ErrorOf([&] { headless::DecodePicture(bytes); }), 481);
}

// Going back to a save of a higher level at level 0 and zooming in again makes the canvas larger each time,
// until it is told that it is enough: the program does not run out of memory with a note unsaved.
TEST(LargePicture, IsNotZoomedBeyondTheMemory) {
  const TemporaryFolder folder;
  std::vector<std::string> printed;
  headless::Driver driver(folder.Path(), [&](const std::string& line) { printed.push_back(line); });
  for (const char* step : {"set Form4.picbox.Width = 150000", "set Form4.picbox.Height = 105000",
                           "click! Form4.cmdm(0)", "get Form4.picbox.Width", "get Form4.txt5.Text"}) {
    driver.Execute(step);
  }
  EXPECT_EQ(printed, (std::vector<std::string>{
                         "message \"The picture is too large to be shown any larger.\" \"Lectern 2\"",
                         "Form4.picbox.Width = 150000", "Form4.txt5.Text = \"0\""}));
}

}  // namespace
}  // namespace lectern
