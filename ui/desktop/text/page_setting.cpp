#include "ui/desktop/text/page_setting.h"

#include <QTextCursor>
#include <algorithm>

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

}  // namespace

int VerseOf(const QString& paragraph) { return paragraph.left(VerseNumberOf(paragraph).digits).toInt(); }

PageSetting::PageSetting(const QFont& font, const QString& text)
    : font_(font), number_width_(0), metrics_(font) {
  qsizetype digits = 2;
  for (const QStringView paragraph : QStringView(text).tokenize(u'\n')) {
    digits = std::max(digits, VerseNumberOf(paragraph).digits);
  }
  number_width_ =
      metrics_.horizontalAdvance(QString(digits, u'0')) + 1.6 * metrics_.horizontalAdvance(QChar(u' '));
}

std::unique_ptr<QTextDocument> PageSetting::Document(const QString& text, int width) const {
  constexpr double kLineHeight = 122;  // per cent
  QTextBlockFormat plain;
  plain.setLineHeight(kLineHeight, QTextBlockFormat::ProportionalHeight);
  plain.setBottomMargin(metrics_.height() * 0.25);
  QTextBlockFormat verse = plain;
  verse.setLeftMargin(number_width_);
  verse.setTextIndent(-number_width_);

  auto document = std::make_unique<QTextDocument>();
  document->setUndoRedoEnabled(false);
  document->setDefaultFont(font_);
  document->setPageSize(QSizeF(width, -1));
  QTextCursor cursor(document.get());
  cursor.beginEditBlock();
  bool first = true;
  for (const QStringView paragraph : QStringView(text).tokenize(u'\n')) {
    const QTextBlockFormat& format = VerseNumberOf(paragraph).digits > 0 ? verse : plain;
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

QTextLayout::FormatRange PageSetting::NumberGap(const QString& paragraph) const {
  const VerseNumber number = VerseNumberOf(paragraph);
  QTextLayout::FormatRange range;
  range.start = static_cast<int>(number.digits);
  range.length = static_cast<int>(number.blanks);
  if (range.length == 0) return range;
  const double width = metrics_.horizontalAdvance(paragraph.left(number.digits + number.blanks));
  range.format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
  range.format.setFontLetterSpacing((number_width_ - width) / range.length);
  return range;
}

void LayStyles(QTextDocument& document, const forms::TextRuns& runs, const TextPositions& positions,
               const PageSetting* setting, const QPalette& palette, double enlargement) {
  QTextCursor edit(&document);
  edit.beginEditBlock();
  auto run = runs.All().begin();
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    QList<QTextLayout::FormatRange> formats;
    if (setting != nullptr) formats.append(setting->NumberGap(block.text()));
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
