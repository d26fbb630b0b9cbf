#include "tools/make_data/paint_files.h"

#include <cmath>
#include <cstdint>
#include <filesystem>

#include "forms/colour.h"
#include "tools/make_data/version_files.h"

namespace lectern::make_data {

namespace {

constexpr int kIconSize = 32;
constexpr int kDotWidths[] = {5, 10, 15, 20, 25};

struct Crayon {
  int red, green, blue;
};

// Six to a row.
constexpr Crayon kCrayons[] = {
    {230, 20, 30},   {255, 110, 30}, {255, 165, 0},  {255, 205, 30},  {255, 245, 60},  {190, 220, 50},
    {110, 190, 60},  {0, 145, 70},   {0, 95, 55},    {0, 140, 140},   {60, 205, 215},  {120, 195, 245},
    {40, 110, 220},  {25, 45, 130},  {120, 60, 190}, {200, 60, 175},  {255, 140, 185}, {250, 215, 185},
    {215, 170, 115}, {150, 90, 45},  {90, 50, 25},   {190, 190, 190}, {110, 110, 110}, {0, 0, 0},
};

void Put(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i, value >>= 8) bytes.push_back(static_cast<char>(value & 0xFF));
}

// Blue, green, red, opacity.
std::uint32_t RingPixel(double from_middle, double radius) {
  constexpr double kHalfLine = 0.75;
  const double off = std::abs(from_middle - radius);
  if (off <= kHalfLine) return 0xFF303030U;
  return off <= 2 * kHalfLine ? 0xC0FFFFFFU : 0;
}

}  // namespace

std::string RingIcon(int diameter) {
  constexpr std::uint32_t kPixelBytes = kIconSize * kIconSize * 4;
  constexpr std::uint32_t kMaskBytes = kIconSize * kIconSize / 8;
  constexpr std::uint32_t kHeader = 40;
  std::string bytes;
  Put(bytes, 0, 2);
  Put(bytes, 1, 2);  // an icon
  Put(bytes, 1, 2);  // of one picture
  Put(bytes, kIconSize, 1);
  Put(bytes, kIconSize, 1);
  Put(bytes, 0, 2);
  Put(bytes, 1, 2);   // planes
  Put(bytes, 32, 2);  // bits a pixel
  Put(bytes, kHeader + kPixelBytes + kMaskBytes, 4);
  Put(bytes, 22, 4);  // where the picture begins
  Put(bytes, kHeader, 4);
  Put(bytes, kIconSize, 4);
  Put(bytes, 2 * kIconSize, 4);  // the mask counts as well
  Put(bytes, 1, 2);
  Put(bytes, 32, 2);
  Put(bytes, 0, 4);
  Put(bytes, kPixelBytes + kMaskBytes, 4);
  Put(bytes, 0, 16);
  for (int y = kIconSize - 1; y >= 0; --y) {
    for (int x = 0; x < kIconSize; ++x) {
      const double from_middle = std::hypot(x + 0.5 - kIconSize / 2.0, y + 0.5 - kIconSize / 2.0);
      Put(bytes, RingPixel(from_middle, diameter / 2.0), 4);
    }
  }
  bytes.append(kMaskBytes, '\0');
  return bytes;
}

std::string PaletteRecords() {
  std::string records;
  for (const Crayon& crayon : kCrayons) {
    const forms::Colour shown = forms::Rgb(crayon.red, crayon.green, crayon.blue);
    records += "\"" + std::to_string(forms::kWhite - shown) + "\"," + std::to_string(shown) + "\r\n";
  }
  return records;
}

void MakePaintFiles(const std::string& data_folder) {
  int number = 1;
  for (const int width : kDotWidths) {
    WriteFile(data_folder + "/cdx" + std::to_string(number++) + ".ico", RingIcon(width));
  }
  const std::string palette = data_folder + "/colors.dat";
  if (!std::filesystem::exists(palette)) WriteFile(palette, PaletteRecords());
}

}  // namespace lectern::make_data
