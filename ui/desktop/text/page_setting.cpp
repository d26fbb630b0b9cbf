#include "ui/desktop/text/page_setting.h"

#include <QFontInfo>
#include <QTextCursor>
#include <algorithm>
#include <cmath>

#include "ui/desktop/app/theme.h"

namespace lectern::desktop {

namespace {

// The lengths of a verse's number and of the blanks after it; both are 0 for any other paragraph.
struct VerseNumber {
  qsizetype digits = 0;
  qsizetype blanks = 0;
};

VerseNumber VerseNumberOf(QStringView paragraph) {
  constexpr int kLongestNumber = 3;  // digits
  VerseNumber number;
  while (number.digits < paragraph.size() && paragraph[number.digits].isDigit()) ++number.digits;
  qsizetype at = number.digits;
  while (at < paragraph.size() && paragraph[at] == u' ') ++at;
  number.blanks = at - number.digits;
  const bool is_verse =
      number.digits > 0 && number.digits <= kLongestNumber && number.blanks > 0 && at < paragraph.size();
  return is_verse ? number : VerseNumber{};
}

QTextCharFormat FormatOf(const forms::TextStyle& style, const QPalette& palette, double enlargement) {
  QTextCharFormat format;
  if (style.colour) {
    format.setForeground(Legible(ToColor(*style.colour, palette), palette.color(QPalette::Base)));
  }
  if (style.bold) format.setFontWeight(*style.bold ? QFont::Bold : QFont::Normal);
  if (style.italic) format.setFontItalic(*style.italic);
  if (style.underline) format.setFontUnderline(*style.underline);
  if (!style.font.empty()) format.setFontFamilies({QString::fromStdString(style.font)});
  if (style.size > 0) format.setFontPointSize(style.size * enlargement);
  return format;
}

constexpr double kGap = 0.7;   // between a number and the words, of the text's size
constexpr double kMark = 0.6;  // left of the widest number, for the mark of a verse
constexpr double kLeading = 1.4;
constexpr double kBetweenVerses = 0.3;

QFont NumberFont(const QFont& text) {
  QFont font = OwnFont();
  font.setPointSizeF(text.pointSizeF() * 2 / 3);
  return font;
}

}  // namespace

int VerseOf(const QString& paragraph) { return paragraph.left(VerseNumberOf(paragraph).digits).toInt(); }

PageSetting::PageSetting(const QFont& font, const QString& text)
    : font_(font), number_font_(NumberFont(font)), metrics_(font), number_metrics_(number_font_) {
  qsizetype digits = 0;
  for (const QStringView paragraph : QStringView(text).tokenize(u'\n')) {
    digits = std::max(digits, VerseNumberOf(paragraph).digits);
  }
  if (digits == 0) return;
  const double widest = number_metrics_.horizontalAdvance(QString(std::max<qsizetype>(digits, 2), u'0'));
  gutter_ = static_cast<int>(std::ceil(widest + Pixels(kGap + kMark)));
}

double PageSetting::Pixels(double share) const { return QFontInfo(font_).pixelSize() * share; }

std::unique_ptr<QTextDocument> PageSetting::Document(const QString& text, int width) const {
  QTextBlockFormat plain;
  plain.setLineHeight(100 * Pixels(kLeading) / metrics_.height(), QTextBlockFormat::ProportionalHeight);
  plain.setBottomMargin(Pixels(kBetweenVerses));
  plain.setLeftMargin(gutter_);

  auto document = std::make_unique<QTextDocument>();
  document->setUndoRedoEnabled(false);
  document->setDefaultFont(font_);
  document->setPageSize(QSizeF(width, -1));
  QTextCursor cursor(document.get());
  cursor.beginEditBlock();
  bool first = true;
  for (const QStringView paragraph : QStringView(text).tokenize(u'\n')) {
    QTextBlockFormat format = plain;
    if (const qsizetype digits = VerseNumberOf(paragraph).digits; digits > 0) {
      format.setTextIndent(-Pixels(kGap) -
                           number_metrics_.horizontalAdvance(paragraph.first(digits).toString()));
    }
    if (std::exchange(first, false)) {
      cursor.setBlockFormat(format);
    } else {
      cursor.insertBlock(format);
    }
    cursor.insertText(paragraph.toString());
  }
  cursor.endEditBlock();
  // Keeping the glyphs makes scrolling fast but takes about a hundred times the memory of the text.
  constexpr qsizetype kLongestKept = 100'000;
  if (text.size() <= kLongestKept) {
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
      block.layout()->setCacheEnabled(true);
    }
  }
  return document;
}

QList<QTextLayout::FormatRange> PageSetting::NumberFormats(const QString& paragraph,
                                                           const QPalette& palette) const {
  const VerseNumber verse = VerseNumberOf(paragraph);
  if (verse.digits == 0) return {};
  QTextLayout::FormatRange number;
  number.start = 0;
  number.length = static_cast<int>(verse.digits);
  number.format.setFontFamilies(QFontInfo(number_font_).family().split(u','));
  number.format.setFontPointSize(number_font_.pointSizeF());
  number.format.setFontWeight(QFont::Normal);
  number.format.setFontItalic(false);
  number.format.setForeground(MutedColor(palette.color(QPalette::Text), palette.color(QPalette::Base)));

  QTextLayout::FormatRange gap;
  gap.start = number.length;
  gap.length = static_cast<int>(verse.blanks);
  const double blanks = metrics_.horizontalAdvance(QString(verse.blanks, u' '));
  gap.format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
  gap.format.setFontLetterSpacing((Pixels(kGap) - blanks) / gap.length);
  return {number, gap};
}

void LayStyles(QTextDocument& document, const forms::TextRuns& runs, const TextPositions& positions,
               const PageSetting* setting, const QPalette& palette, double enlargement) {
  QTextCursor edit(&document);
  edit.beginEditBlock();
  auto run = runs.All().begin();
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    QList<QTextLayout::FormatRange> formats;
    if (setting != nullptr) formats = setting->NumberFormats(block.text(), palette);
    const int start = block.position();
    const int end = start + block.length();
    for (; run != runs.All().end() && positions.ToQt(run->start) < end; ++run) {
      const int run_start = std::max(positions.ToQt(run->start), start);
      const int run_end = std::min(positions.ToQt(run->End()), end);
      QTextLayout::FormatRange range;
      range.start = run_start - start;
      range.length = run_end - run_start;
      range.format = FormatOf(run->style, palette, enlargement);
      formats.append(range);
      if (positions.ToQt(run->End()) > end) break;  // the run continues in the next paragraph
    }
    formats.removeIf([](const QTextLayout::FormatRange& range) { return range.length <= 0; });
    if (block.layout()->formats() != formats) block.layout()->setFormats(formats);
  }
  edit.endEditBlock();
}

}  // namespace lectern::desktop
