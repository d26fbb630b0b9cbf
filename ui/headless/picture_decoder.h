// Pictures from the bytes of their files, without a desktop: JPEG, PNG, GIF, BMP, ICO.
#pragma once

#include <string_view>

#include "forms/picture.h"

namespace lectern::headless {

// Error 481 where the bytes are no picture.
forms::Picture DecodePicture(std::string_view bytes);

}  // namespace lectern::headless
