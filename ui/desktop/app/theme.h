// The look of the program: colours, fonts, and what is drawn in the same way everywhere. Colours of the
// desktop's theme come from Qt's palette. If the desktop has no palette of its own, the program uses a calm,
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

// A flat style with fine lines and a clear ring around the widget that has the focus, based on Qt's Fusion
// style. The application owns it once it is set.
QStyle* MakeStyle();

// The program's own colours. The light ones are also those of paper, whatever the screen looks like.
enum class Shade { kLight, kDark };
QPalette OwnPalette(Shade shade = Shade::kLight);

// An open book on its stand, in the sizes that desktops ask for.
QIcon ProgramIcon();

// The program's own font: that of the desktop, in a size in which every text fits its place.
QFont OwnFont();

// The font of a control. What the control does not set is taken from the program's own font.
QFont FontOf(const forms::TextControl& control);

// The font, made larger if it is too small for writing.
QFont ForWriting(QFont font);

// The colour for a colour number of the forms.
QColor ToColor(forms::Colour colour, const QPalette& palette);

bool IsDark(const QColor& colour);

// The text's colour, lightened until it is legible if the ground is dark. Text in exactly the colour of its
// ground is hidden on purpose and stays hidden.
QColor Legible(const QColor& text, const QColor& ground);

// A plain name of the colour, such as "dark green".
QString NameOf(const QColor& colour);

// The colour of a shadow on that ground.
QColor ShadowOn(const QColor& ground);

// Black or white, whichever is easier to read on the ground.
QColor TextOn(const QColor& ground);

QColor Mixed(const QColor& a, const QColor& b, double share_of_b);

// The colour of the fine lines around and between controls.
QColor LineColor(const QPalette& palette);

// The colour of secondary text on that ground: the text's own, as near to the ground as can be read with
// ease.
QColor MutedColor(const QColor& text, const QColor& ground);

// The ground of what is selected in a list.
QColor AccentGround(const QPalette& palette);

// The same face in another size and weight.
QFont InPixels(QFont font, int pixels, QFont::Weight weight = QFont::Normal);

constexpr int kTitlePixels = 15;      // a panel's title, in semibold
constexpr int kSecondaryPixels = 12;  // what is said besides, in the muted colour
constexpr double kCorner = 5;         // radius of a control
constexpr double kPanelCorner = 8;    // radius of a panel that floats

// The property of a widget that is set off by hairlines at its sides instead of a frame.
constexpr const char* kPageProperty = "page";

// The property of a button that shows its frame only while the pointer or the focus is on it.
constexpr const char* kQuietProperty = "quiet";

// A rectangle whose outline falls on whole pixels.
QRectF OutlineOf(const QRect& rect);

// The ring around the widget that has the focus.
void DrawFocusRing(QPainter& painter, const QRectF& around, const QPalette& palette);

}  // namespace lectern::desktop
