// Colours are 32-bit numbers: red + 256 times green + 65536 times blue. One with the top bit set names a
// colour of the desktop's theme, which the layer looks up. As text they are signed.
#pragma once

#include <cstdint>

namespace lectern::forms {

using Colour = std::int32_t;

constexpr Colour SystemColour(int number) {
  return static_cast<Colour>(0x80000000U | static_cast<unsigned>(number));
}
constexpr bool IsSystemColour(Colour colour) { return colour < 0; }

inline constexpr Colour kWindowBackground = SystemColour(5);  // &H80000005
inline constexpr Colour kWindowText = SystemColour(8);
inline constexpr Colour kButtonFace = SystemColour(15);
inline constexpr Colour kButtonShadow = SystemColour(16);
inline constexpr Colour kButtonText = SystemColour(18);  // &H80000012

inline constexpr Colour kRed = 255;
inline constexpr Colour kBlue = 16711680;
inline constexpr Colour kBlack = 0;
inline constexpr Colour kWhite = 0xFFFFFF;

// A component above 255 counts as 255.
constexpr Colour Rgb(int red, int green, int blue) {
  const auto part = [](int value) { return value > 255 ? 255 : value; };
  return part(red) + 256 * part(green) + 65536 * part(blue);
}

constexpr int RedOf(Colour colour) { return colour & 255; }
constexpr int GreenOf(Colour colour) { return (colour >> 8) & 255; }
constexpr int BlueOf(Colour colour) { return (colour >> 16) & 255; }

}  // namespace lectern::forms
