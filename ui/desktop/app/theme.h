// The program's colours and typeface. Colours of the desktop's theme come from Qt's palette; where the
// desktop brings none of its own, the program has a calm light one. A colour that a handler chose is kept,
// but for text that could not be read on a dark ground.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

#include "forms/control.h"

namespace lectern::desktop {

// Gives the application its style and its palette.
void Dress();

// The program's own typeface: the desktop's, in a size for which every text has the room that its place gives
// it.
QFont OwnFont();

// The font, not smaller than what one can write in for an hour. Not for what is printed as it stands.
QFont ForWriting(QFont font);

// Dark ink on a light ground: the program's own colours, and what goes to a printer whatever the screen looks
// like.
QPalette OwnPalette();

// The colour that a number of the forms stands for.
QColor ToColor(forms::Colour colour, const QPalette& palette);

bool IsDark(const QColor& colour);

// Text in that colour as it can be read on that ground: lightened where the ground is dark and the two are
// too close. Text in the very colour of its ground is meant to vanish, and does.
QColor Legible(const QColor& text, const QColor& ground);

// What a shadow on that ground looks like.
QColor ShadowOn(const QColor& ground);

// Black or white, whichever is better read on the ground.
QColor TextOn(const QColor& ground);

QColor Mixed(const QColor& a, const QColor& b, double share_of_b);

// The font of a control: what it does not say is the program's own.
QFont FontOf(const forms::TextControl& control);

}  // namespace lectern::desktop
