// Pictures between the forms and Qt. A pixel of the forms lies in memory as red, green, blue, opacity, which
// Qt can show where it lies.
#pragma once

#include <QCursor>
#include <QImage>
#include <QPixmap>
#include <string_view>

#include "forms/picture.h"

namespace lectern::desktop {

// The bitmap as an image, without a copy: it must outlive the image and stay as it is meanwhile.
QImage ImageOf(const forms::Bitmap& bitmap);

// The picture in the bytes of a JPEG, PNG, GIF, BMP or ICO file, told by the bytes; error 481 for any others.
forms::Picture Decode(std::string_view bytes);

// The picture made to fill that many pixels of the screen.
QPixmap Filled(const forms::Picture& picture, const QSize& size);

// A pointer with the hot spot in its middle.
QCursor PointerOf(const forms::Picture& picture);

// The pointer for one of the numbers of the forms.
QCursor PointerOf(int number);

}  // namespace lectern::desktop
