#include "forms/picture_file.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace lectern::forms {

namespace {

using namespace std::string_view_literals;

constexpr std::int64_t kMega = std::int64_t{1} << 20;

// Which take a fifth of a second at most, and up to 11 bytes a pixel while they are decoded.
constexpr std::int64_t kMostPixels = 16 * kMega;             // unpacked one by one
constexpr std::int64_t kMostJpegPixels = 48 * kMega;         // which is decoded in a small size
constexpr std::int64_t kMostPixelsOfManyScans = 16 * kMega;  // all of which are held until the last scan
constexpr std::int64_t kMostWorkOfManyScans = 96 * kMega;    // pixels times scans
constexpr std::int64_t kMostIconPixels = kMega;
constexpr std::size_t kLargestJpeg = std::size_t{20} << 20;
constexpr std::size_t kLargestPng = std::size_t{48} << 20;

// The parts of a file by their places. Reading behind the end gives 0.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

  std::size_t Size() const { return bytes_.size(); }
  std::string_view From(std::size_t at) const { return bytes_.substr(std::min(at, bytes_.size())); }
  std::int64_t At(std::size_t at) const {
    return at < bytes_.size() ? static_cast<unsigned char>(bytes_[at]) : 0;
  }
  std::int64_t Little16(std::size_t at) const { return At(at) | At(at + 1) << 8; }
  std::int64_t Little32(std::size_t at) const { return Little16(at) | Little16(at + 2) << 16; }
  std::int64_t Big16(std::size_t at) const { return At(at) << 8 | At(at + 1); }
  std::int64_t Big32(std::size_t at) const { return Big16(at) << 16 | Big16(at + 2); }

 private:
  std::string_view bytes_;
};

// The headers' numbers have at most 32 bits.
std::int64_t Area(std::int64_t width, std::int64_t height) {
  constexpr std::int64_t kLongest = 1 << 28;
  return std::min(std::abs(width), kLongest) * std::min(std::abs(height), kLongest);
}

// Goes from marker to marker, and counts the scans.
std::optional<PictureFile> Jpeg(const Bytes& bytes) {
  PictureFile file{PictureFormat::kJpeg};
  std::int64_t scans = 0;
  std::int64_t weight = 1;
  for (std::size_t at = 2; at + 1 < bytes.Size();) {
    const std::size_t mark = bytes.From(at).find('\xFF');
    if (mark == std::string_view::npos) break;
    at += mark + 1;
    const std::int64_t marker = bytes.At(at);
    const bool stands_alone = marker == 0 || marker == 1 || (marker >= 0xD0 && marker <= 0xD8);
    if (marker == 0xFF || stands_alone) {
      at += marker == 0xFF ? 0 : 1;
      continue;
    }
    if (marker == 0xD9) break;  // the end
    const bool is_frame =
        marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
    if (is_frame) {
      file.pixels = std::max(file.pixels, Area(bytes.Big16(at + 6), bytes.Big16(at + 4)));
      constexpr std::int64_t kArithmetic = 0xC9;
      if (marker >= kArithmetic) weight = 8;  // packed in a way that takes so much longer
    }
    if (marker == 0xDA) ++scans;
    at += static_cast<std::size_t>(1 + std::max<std::int64_t>(bytes.Big16(at + 1), 2));
  }
  if (bytes.Size() > kLargestJpeg || file.pixels > kMostJpegPixels) return std::nullopt;
  if (scans * weight > 1 &&
      (file.pixels > kMostPixelsOfManyScans || file.pixels * scans * weight > kMostWorkOfManyScans)) {
    return std::nullopt;
  }
  file.has_many_scans = scans > 1;
  return file;
}

// Leaves out the chunks of which a small one can unpack to megabytes. No pixel depends on them.
std::optional<PictureFile> Png(const Bytes& bytes) {
  constexpr std::string_view kLeftOut[] = {"zTXt", "iTXt", "tEXt", "iCCP", "eXIf", "sPLT"};
  constexpr std::size_t kSignature = 8;
  PictureFile file{PictureFormat::kPng};
  const std::int64_t deep = bytes.At(24) > 8 ? 2 : 1;  // two bytes for each colour
  file.pixels = Area(bytes.Big32(16), bytes.Big32(20));
  if (bytes.Size() > kLargestPng || file.pixels * deep > kMostPixels) return std::nullopt;
  for (std::size_t at = kSignature; at + 8 <= bytes.Size();) {
    const std::string_view name = bytes.From(at + 4).substr(0, 4);
    const auto length = static_cast<std::size_t>(bytes.Big32(at)) + 12;
    // A second header could say anything.
    if (name == "IHDR" && at != kSignature) return std::nullopt;
    if (std::find(std::begin(kLeftOut), std::end(kLeftOut), name) != std::end(kLeftOut)) {
      if (file.reduced.empty()) file.reduced = bytes.From(0).substr(0, at);
    } else if (!file.reduced.empty()) {
      file.reduced.append(bytes.From(at).substr(0, length));
    }
    at += length;
  }
  return file;
}

// Passes over blocks, each behind its length, to the one of no length. Returns the place behind it.
std::size_t BehindBlocks(const Bytes& bytes, std::size_t at) {
  while (at < bytes.Size() && bytes.At(at) != 0) at += static_cast<std::size_t>(bytes.At(at)) + 1;
  return at + 1;
}

std::size_t ColoursBehind(std::int64_t flags) {
  return (flags & 0x80) == 0 ? 0 : std::size_t{3} << ((flags & 7) + 1);
}

std::optional<PictureFile> Gif(const Bytes& bytes) {
  constexpr std::size_t kHeader = 13;
  PictureFile file{PictureFormat::kGif};
  std::int64_t width = bytes.Little16(6);
  std::int64_t height = bytes.Little16(8);
  std::size_t at = kHeader + ColoursBehind(bytes.At(10));
  while (bytes.At(at) == '!') at = BehindBlocks(bytes, at + 2);
  if (bytes.At(at) == ',') {
    // A decoder may grow the picture to hold this part of it.
    width = std::max(width, bytes.Little16(at + 1) + bytes.Little16(at + 5));
    height = std::max(height, bytes.Little16(at + 3) + bytes.Little16(at + 7));
    at = BehindBlocks(bytes, at + 10 + ColoursBehind(bytes.At(at + 9)) + 1);
    if (at < bytes.Size()) file.reduced = std::string(bytes.From(0).substr(0, at)) + ';';
  }
  file.pixels = Area(width, height);
  if (file.pixels > kMostPixels) return std::nullopt;
  return file;
}

// The size that a BMP's header says, which begins with its own length.
std::int64_t PixelsOfHeader(const Bytes& bytes, std::size_t at) {
  constexpr std::int64_t kShortHeader = 12;
  return bytes.Little32(at) == kShortHeader ? Area(bytes.Little16(at + 4), bytes.Little16(at + 6))
                                            : Area(static_cast<std::int32_t>(bytes.Little32(at + 4)),
                                                   static_cast<std::int32_t>(bytes.Little32(at + 8)));
}

std::optional<PictureFile> Bmp(const Bytes& bytes) {
  constexpr std::size_t kInfo = 14;
  PictureFile file{PictureFormat::kBmp, PixelsOfHeader(bytes, kInfo)};
  // As this program saves it, three bytes to a pixel: a file that holds what it promises.
  const bool is_whole = file.pixels <= static_cast<std::int64_t>(bytes.Size()) / 3;
  if (file.pixels > (is_whole ? kMostPixelsSaved : kMostPixels)) return std::nullopt;
  return file;
}

std::optional<PictureFile> Icon(const Bytes& bytes) {
  constexpr std::size_t kEntries = 6;
  constexpr std::size_t kEntry = 16;
  PictureFile file{PictureFormat::kIcon};
  const auto count = static_cast<std::size_t>(bytes.Little16(4));
  for (std::size_t i = 0; i < count && kEntries + (i + 1) * kEntry <= bytes.Size(); ++i) {
    const auto at = static_cast<std::size_t>(bytes.Little32(kEntries + i * kEntry + 12));
    std::int64_t pixels = PixelsOfHeader(bytes, at);
    if (bytes.From(at).starts_with("\x89PNG")) {
      const std::optional<PictureFile> png = Png(Bytes(bytes.From(at)));
      if (!png || bytes.From(at).find("zTXt") != std::string_view::npos ||
          bytes.From(at).find("iTXt") != std::string_view::npos) {
        return std::nullopt;
      }
      pixels = png->pixels;
    }
    file.pixels = std::max(file.pixels, pixels);
  }
  if (file.pixels > kMostIconPixels) return std::nullopt;
  return file;
}

}  // namespace

std::optional<PictureFile> ReadPictureFile(std::string_view bytes) {
  constexpr std::pair<std::string_view, std::optional<PictureFile> (*)(const Bytes&)> kFormats[] = {
      {"\xFF\xD8\xFF"sv, Jpeg}, {"\x89PNG\r\n\x1A\n"sv, Png}, {"GIF8"sv, Gif}, {"BM"sv, Bmp},
      {"\0\0\1\0"sv, Icon},     {"\0\0\2\0"sv, Icon},
  };
  if (bytes.size() > kLargestPictureFile) return std::nullopt;
  for (const auto& [beginning, read] : kFormats) {
    if (bytes.starts_with(beginning)) return read(Bytes(bytes));
  }
  return std::nullopt;
}

}  // namespace lectern::forms
