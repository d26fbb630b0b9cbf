// Pictures between the forms and Qt. Both have a pixel in memory as red, green, blue, opacity, so that Qt can
// show a bitmap of the forms without a copy.
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

// The picture in the bytes of a JPEG, PNG, GIF, BMP or ICO file, whatever the file's name; error 481 for
// others.
forms::Picture Decode(std::string_view bytes);

// The picture scaled to that many pixels of the screen.
QPixmap Scaled(const forms::Picture& picture, const QSize& size);

// A pointer whose hot spot is its middle.
QCursor PointerOf(const forms::Picture& picture);

// The pointer that a number of the forms stands for.
QCursor PointerOf(int number);

}  // namespace lectern::desktop
