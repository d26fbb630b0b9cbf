// The look that all plates share: the page, its palette and its frame. Lengths are pixels of the finished
// picture.
#pragma once

namespace lectern::plates {

inline constexpr int kWidth = 640;
inline constexpr int kHeight = 436;
inline constexpr double kFrameOuter = 9;   // from the edge of the page to the outer rule
inline constexpr double kFrameInner = 16;  // to the inner rule, which bounds what is drawn

struct Colour {
  double red, green, blue;
};

constexpr Colour FromHex(unsigned rgb) {
  return {(rgb >> 16) / 255.0, ((rgb >> 8) & 0xFF) / 255.0, (rgb & 0xFF) / 255.0};
}

inline constexpr Colour kPaper = FromHex(0xF7F0DF);
inline constexpr Colour kInk = FromHex(0x35291D);
inline constexpr Colour kFaintInk = FromHex(0x75624A);
inline constexpr Colour kRed = FromHex(0x9C2B20);
inline constexpr Colour kBlue = FromHex(0x2A4A74);
inline constexpr Colour kGold = FromHex(0xB88A2C);
inline constexpr Colour kGreen = FromHex(0x5C7040);
inline constexpr Colour kSeaGround = FromHex(0xD6E3E3);
inline constexpr Colour kWaterLine = FromHex(0x86A9B2);
inline constexpr Colour kCoast = FromHex(0x3E5560);
inline constexpr Colour kLakeShore = FromHex(0x5F8798);
inline constexpr Colour kSeaName = FromHex(0x3C6478);

struct Point {
  double x, y;
};

struct Box {
  double left, top, right, bottom;

  bool Meets(const Box& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
  Box Grown(double by) const { return {left - by, top - by, right + by, bottom + by}; }
  double Width() const { return right - left; }
  double Height() const { return bottom - top; }
};

inline constexpr Box kInside{kFrameInner, kFrameInner, kWidth - kFrameInner, kHeight - kFrameInner};

}  // namespace lectern::plates
