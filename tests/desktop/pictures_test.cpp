#include "ui/desktop/app/pictures.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "base/errors.h"

namespace lectern::desktop {
namespace {

constexpr int kWidth = 96;
constexpr int kHeight = 64;

// The left half red, the right one green above and blue below.
QImage ThreeFields() {
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  image.fill(Qt::red);
  QPainter painter(&image);
  painter.fillRect(kWidth / 2, 0, kWidth / 2, kHeight / 2, Qt::green);
  painter.fillRect(kWidth / 2, kHeight / 2, kWidth / 2, kHeight / 2, Qt::blue);
  return image;
}

std::string Jpeg(bool progressive) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, "jpeg");
  writer.setProgressiveScanWrite(progressive);
  EXPECT_TRUE(writer.write(ThreeFields()));
  return bytes.toStdString();
}

forms::Picture DecodeOrNone(const std::string& bytes) {
  try {
    return Decode(bytes);
  } catch (const base::RunTimeError&) {
    return {};
  }
}

bool IsNear(QColor a, QColor b) {
  constexpr int kNear = 40;
  return std::abs(a.red() - b.red()) < kNear && std::abs(a.green() - b.green()) < kNear &&
         std::abs(a.blue() - b.blue()) < kNear;
}

TEST(Pictures, ShowThemselvesSmallWithoutTheirPixels) {
  const forms::Picture picture = Decode(Jpeg(false));
  EXPECT_EQ(picture.Width(), kWidth);
  EXPECT_EQ(picture.Height(), kHeight);
  const QImage before = Scaled(picture, {20, 30}).toImage();
  EXPECT_NE(picture.Source(), nullptr);
  EXPECT_EQ(picture->At(0, 0) & 0xFF, 0xFEU);  // red, from here on from its pixels
  const QImage after = Scaled(picture, {20, 30}).toImage();
  EXPECT_EQ(picture.Source(), nullptr);
  for (const QImage& image : {before, after}) {
    ASSERT_EQ(image.size(), QSize(20, 30));
    EXPECT_TRUE(IsNear(image.pixelColor(3, 25), Qt::red));
    EXPECT_TRUE(IsNear(image.pixelColor(16, 5), Qt::green));
    EXPECT_TRUE(IsNear(image.pixelColor(16, 25), Qt::blue));
  }
}

// A picture is refused when it is loaded, where the program can say so, and never when it is shown.
TEST(Pictures, AreRefusedAtOnceOrNotAtAll) {
  std::mt19937 chance(7);
  const auto below = [&chance](std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(chance);
  };
  constexpr std::size_t kMark = 3;  // bytes that tell what it is
  int refused = 0;
  int taken = 0;
  for (const bool progressive : {false, true}) {
    const std::string whole = Jpeg(progressive);
    for (int round = 0; round < 1000; ++round) {
      std::string bytes = whole;
      for (std::size_t i = below(3); i < 3; ++i)
        bytes[kMark + below(bytes.size() - kMark)] = static_cast<char>(below(256));
      if (round % 4 == 0) bytes.resize(kMark + below(bytes.size() - kMark));
      const bool good = !QImage::fromData(QByteArray::fromStdString(bytes), "jpeg").isNull();
      const forms::Picture picture = DecodeOrNone(bytes);
      ASSERT_TRUE(picture || !good) << "round " << round;
      ++(picture ? taken : refused);
      if (!picture) continue;
      ASSERT_FALSE(Scaled(picture, {20, 30}).isNull()) << "round " << round;
      ASSERT_EQ(picture->Width(), picture.Width()) << "round " << round;
    }
  }
  EXPECT_GT(refused, 100);
  EXPECT_GT(taken, 100);
}

}  // namespace
}  // namespace lectern::desktop
