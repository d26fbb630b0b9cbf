// Whatever lies where a picture is wanted is a picture or refused, and a picture that was taken is written
// and read back as it was.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/run_time_error.h"
#include "forms/bitmap.h"
#include "ui/headless/picture_decoder.h"

using lectern::forms::Bitmap;
using lectern::forms::Picture;

extern const std::size_t kHead;
extern const std::vector<std::string> kPieces;
const std::size_t kHead = 0;
const std::vector<std::string> kPieces = {
    lectern::forms::BmpBytes(Bitmap(3, 2, 0xFF123456)),
    lectern::forms::BmpBytes(Bitmap(1, 1)).substr(0, 54),
    "BM",
    std::string("\x28\0\0\0", 4),
    std::string("\x01\0\x18\0", 4),
    std::string("\x01\0\x08\0", 4),
    std::string("\0\0\x01\0\x01\0\x10\x10", 8),  // an icon of one picture
    "\x89PNG\r\n\x1A\n",
    std::string("\0\0\0\x0DIHDR\0\0\0\x01\0\0\0\x01\x08\x02\0\0\0", 21),
    std::string("\0\0\0\0IEND\xAE\x42\x60\x82", 12),
    "GIF89a",
    std::string("\x02\0\x02\0\x80\0\0\xFF\xFF\xFF\0\0\0", 13),
    std::string(",\0\0\0\0\x02\0\x02\0\0\x02\x03\x84\x8F\x05\0;", 17),
    std::string("\xFF\xD8\xFF\xE0\0\x10JFIF\0\x01\x01\0\0\x01\0\x01\0\0", 20),
    "\xFF\xDB",
    "\xFF\xC0",
    "\xFF\xDA",
    "\xFF\xD9",
    std::string(4, '\0'),
    std::string(4, '\xFF'),
    std::string(64, '\x10'),
    "P6 2 2 255\n",
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"4\" height=\"4\"/>",
    "/* XPM */ static char*x[]={\"1 1 1 1\",\"a c #fff\",\"a\"};",
};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const Picture taken = lectern::headless::DecodePicture({reinterpret_cast<const char*>(data), size});
    constexpr int kLargest = 1000;  // pixels; the way back of a larger one only takes its time
    if (taken->Width() > kLargest || taken->Height() > kLargest) return 0;
    const Picture back = lectern::headless::DecodePicture(lectern::forms::BmpBytes(*taken));
    if (back->Width() != taken->Width() || back->Height() != taken->Height()) std::abort();
  } catch (const lectern::base::RunTimeError& error) {
    if (error.number() != static_cast<int>(lectern::base::ErrorNumber::kInvalidPicture)) std::abort();
  }
  return 0;
}
