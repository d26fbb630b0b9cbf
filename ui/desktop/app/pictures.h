// Converts pictures between the forms and Qt. Both store a pixel as red, green, blue and opacity, so that Qt
// can show a bitmap of the forms without a copy.
#pragma once

#include <QCursor>
#include <QImage>
#include <QPixmap>
#include <string_view>

#include "forms/picture.h"

namespace lectern::desktop {

// The bitmap as an image, without a copy.
// Requires: the bitmap outlives the image and does not change meanwhile.
QImage ImageOf(const forms::Bitmap& bitmap);

// The picture in the bytes of a JPEG, PNG, GIF, BMP or ICO file. Raises error 481 for anything else.
forms::Picture Decode(std::string_view bytes);

// The picture scaled to that many pixels of the screen.
QPixmap Scaled(const forms::Picture& picture, const QSize& size);

// A pointer whose hot spot is its middle.
QCursor PointerOf(const forms::Picture& picture);

// The pointer for a value of the property MousePointer.
QCursor PointerOf(int number);

}  // namespace lectern::desktop
