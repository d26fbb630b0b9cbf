// What a picture's file says of itself before anything is decoded.
//
// A few bytes can promise any number of pixels, and a small file can take minutes to decode. So what a
// picture costs is told from its headers, and one that costs too much counts as none: a page of five pictures
// takes neither 300 MB nor a second. The limits leave room for a scanned page and for the pictures of a
// camera.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lectern::forms {

enum class PictureFormat { kJpeg, kPng, kGif, kBmp, kIcon };

// In bytes; no larger file is read as a picture.
inline constexpr std::uint64_t kLargestPictureFile = std::uint64_t{80} << 20;

// The most pixels of a picture that is saved: every picture that was saved can be loaded.
inline constexpr std::int64_t kMostPixelsSaved = std::int64_t{24} << 20;

struct PictureFile {
  explicit PictureFile(PictureFormat the_format, std::int64_t the_pixels = 0)
      : format(the_format), pixels(the_pixels) {}

  PictureFormat format;
  std::int64_t pixels;          // of the largest picture in the file
  bool has_many_scans = false;  // a JPEG of which nothing can be seen before the last of them is read

  // The file without what only costs: texts and colour profiles of a PNG, all but the first picture of a GIF.
  // Empty where nothing is left out.
  std::string reduced;

  std::string_view Decodable(std::string_view bytes) const { return reduced.empty() ? bytes : reduced; }
};

// Nothing where the bytes begin as none of the five formats, or the picture costs too much.
std::optional<PictureFile> ReadPictureFile(std::string_view bytes);

}  // namespace lectern::forms
