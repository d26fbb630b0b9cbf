// Fits a text into its place. A text that is too long is set somewhat smaller; where that is not enough it
// ends in dots, and a tooltip shows all of it.
#pragma once

#include <QFont>
#include <QSize>
#include <QString>

namespace lectern::desktop {

struct FittedText {
  QString text;
  QFont font;
  bool several_lines = false;  // as many as fit, broken between words
  bool cut = false;
};

FittedText Fit(const QString& text, const QFont& font, const QSize& place);

// The font in which the line is at most that wide, or the smallest that is still legible.
QFont FitLine(const QString& text, const QFont& font, int width);

}  // namespace lectern::desktop
