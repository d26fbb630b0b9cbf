// The look of the program: colours, typefaces, and what is drawn in the same way everywhere. Colours of the
// desktop's theme come from Qt's palette; where the desktop brings none of its own, the program has a calm
// light one. A colour that a handler chose is kept, except for text that would be illegible on a dark ground.
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QStyle>

#include "forms/control.h"

namespace lectern::desktop {

// Gives the application its style and its palette.
// Requires: there is a QApplication.
void ApplyTheme();

// Flat, with fine lines, and a clear ring around what has the focus; what it does not draw itself is drawn as
// in Qt's Fusion style. The application owns it once it is set.
QStyle* MakeStyle();

// Dark ink on a light ground: the program's own colours, and those of paper whatever the screen looks like.
QPalette OwnPalette();

// An open book on its stand, in the sizes that desktops ask for.
QIcon ProgramIcon();

// The program's own font: the desktop's, in a size for which every text fits its place.
QFont OwnFont();

// The font of a control; what the control leaves open is the program's own.
QFont FontOf(const forms::TextControl& control);

// The font in a size that is large enough for writing.
QFont ForWriting(QFont font);

// The colour that a number of the forms stands for.
QColor ToColor(forms::Colour colour, const QPalette& palette);

bool IsDark(const QColor& colour);

// The text's colour, lightened until it is legible where the ground is dark. Text in the very colour of its
// ground is hidden on purpose and stays so.
QColor Legible(const QColor& text, const QColor& ground);

// What a shadow on that ground looks like.
QColor ShadowOn(const QColor& ground);

// Black or white, whichever is easier to read on the ground.
QColor TextOn(const QColor& ground);

QColor Mixed(const QColor& a, const QColor& b, double share_of_b);

// The colour of the fine lines around and between controls.
QColor LineColor(const QPalette& palette);

// A rectangle whose outline falls on whole pixels.
QRectF OutlineOf(const QRect& rect);

// The ring that shows where the keyboard's input goes.
void DrawFocusRing(QPainter& painter, const QRectF& around, const QPalette& palette);

}  // namespace lectern::desktop
