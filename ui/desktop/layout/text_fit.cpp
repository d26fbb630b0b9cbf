#include "ui/desktop/layout/text_fit.h"

#include <QFontMetrics>
#include <QTextLayout>
#include <cmath>

namespace lectern::desktop {

namespace {

constexpr double kSmallestShare = 0.8;  // of the wanted size
constexpr double kShareStep = 0.05;

QFont ScaledFont(const QFont& font, double share) {
  QFont scaled = font;
  if (font.pointSizeF() > 0) {
    scaled.setPointSizeF(font.pointSizeF() * share);
  } else {
    scaled.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * share)));
  }
  return scaled;
}

// The font at the largest size at which the text fits, or at the smallest allowed.
template <class Fits>
QFont LargestThatFits(const QFont& font, Fits fits) {
  if (fits(font)) return font;
  QFont scaled = font;
  for (double share = 1 - kShareStep; share > kSmallestShare - kShareStep / 2; share -= kShareStep) {
    scaled = ScaledFont(font, share);
    if (fits(scaled)) break;
  }
  return scaled;
}

// The lines that fit, the last of them ending in dots.
QString CutToLines(const QString& text, const QFont& font, const QSize& place) {
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WordWrap);
  layout.setTextOption(option);
  const QFontMetrics metrics(font);
  const int lines = place.height() / metrics.lineSpacing();
  QString result;
  layout.beginLayout();
  for (int i = 0; i < lines; ++i) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(place.width());
    if (i + 1 < lines) {
      result += text.mid(line.textStart(), line.textLength()).trimmed() + u'\n';
    } else {
      result += metrics.elidedText(text.mid(line.textStart()).simplified(), Qt::ElideRight, place.width());
    }
  }
  layout.endLayout();
  return result;
}

}  // namespace

QFont FitLine(const QString& text, const QFont& font, int width) {
  return LargestThatFits(font, [&](const QFont& tried) {
    return QFontMetrics(tried).size(Qt::TextShowMnemonic | Qt::TextSingleLine, text).width() <= width;
  });
}

FittedText Fit(const QString& text, const QFont& font, const QSize& place) {
  FittedText fitted;
  fitted.text = text;
  fitted.several_lines = QFontMetrics(font).lineSpacing() * 2 <= place.height() + 2;
  if (!fitted.several_lines) {
    const QString line = QString(text).replace(u'\r', u' ').replace(u'\n', u' ');
    const auto width = [&line](const QFont& tried) { return QFontMetrics(tried).horizontalAdvance(line); };
    fitted.font = LargestThatFits(font, [&](const QFont& tried) { return width(tried) <= place.width(); });
    fitted.cut = width(fitted.font) > place.width();
    fitted.text =
        fitted.cut ? QFontMetrics(fitted.font).elidedText(line, Qt::ElideRight, place.width()) : line;
    return fitted;
  }
  fitted.text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  const QRect room(0, 0, place.width(), 1 << 20);
  const auto fits = [&](const QFont& tried) {
    return QFontMetrics(tried).boundingRect(room, Qt::TextWordWrap, fitted.text).height() <= place.height();
  };
  fitted.font = LargestThatFits(font, fits);
  fitted.cut = !fits(fitted.font);
  if (fitted.cut) fitted.text = CutToLines(fitted.text, fitted.font, place);
  return fitted;
}

}  // namespace lectern::desktop
