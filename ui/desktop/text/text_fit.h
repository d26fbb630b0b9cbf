// Room for text: nothing that a person reads is cut in silence. A text that is too long for its place is set
// somewhat smaller, and where that is not enough it ends in dots and stands whole in the tooltip.
#pragma once

#include <QFont>
#include <QSize>
#include <QString>

namespace lectern::desktop {

struct FittedText {
  QString text;
  QFont font;
  bool several_lines = false;  // as many as the place has room for, broken between words
  bool cut = false;
};

FittedText Fit(const QString& text, const QFont& font, const QSize& place);

// The font in which the one line is no wider than that, or the smallest that is still readable.
QFont FitLine(const QString& text, const QFont& font, int width);

}  // namespace lectern::desktop
