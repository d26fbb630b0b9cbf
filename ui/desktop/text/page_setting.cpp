#include "ui/desktop/text/page_setting.h"

#include <QTextCursor>
#include <algorithm>

namespace lectern::desktop {

namespace {

constexpr int kLongestNumber = 3;  // digits

// The number that a verse begins with and the blanks behind it; both 0 where the paragraph is none.
struct VerseNumber {
  qsizetype digits = 0;
  qsizetype blanks = 0;
};

VerseNumber NumberOf(QStringView paragraph) {
  VerseNumber number;
  while (number.digits < paragraph.size() && paragraph[number.digits].isDigit()) ++number.digits;
  qsizetype at = number.digits;
  while (at < paragraph.size() && paragraph[at] == u' ') ++at;
  number.blanks = at - number.digits;
  const bool is_verse =
      number.digits > 0 && number.digits <= kLongestNumber && number.blanks > 0 && at < paragraph.size();
  return is_verse ? number : VerseNumber{};
}

template <class Use>
void ForEachParagraph(QStringView text, Use use) {
  for (qsizetype start = 0; start <= text.size();) {
    qsizetype end = text.indexOf(u'\n', start);
    if (end < 0) end = text.size();
    use(text.mid(start, end - start));
    start = end + 1;
  }
}

}  // namespace

PageSetting::PageSetting(const QFont& font, const QString& text)
    : font_(font), number_width_(0), metrics_(font) {
  qsizetype digits = 2;
  ForEachParagraph(text,
                   [&](QStringView paragraph) { digits = std::max(digits, NumberOf(paragraph).digits); });
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
  ForEachParagraph(text, [&](QStringView paragraph) {
    const QTextBlockFormat& format = NumberOf(paragraph).digits > 0 ? verse : plain;
    if (std::exchange(first, false)) {
      cursor.setBlockFormat(format);
    } else {
      cursor.insertBlock(format);
    }
    cursor.insertText(paragraph.toString());
  });
  cursor.endEditBlock();
  // Keeping the glyphs makes scrolling quick, and takes about a hundred times the room of the text.
  constexpr qsizetype kLongestKept = 100'000;
  if (text.size() <= kLongestKept) {
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
      block.layout()->setCacheEnabled(true);
    }
  }
  return document;
}

QTextLayout::FormatRange PageSetting::NumberGap(const QString& paragraph) const {
  const VerseNumber number = NumberOf(paragraph);
  QTextLayout::FormatRange range;
  range.start = static_cast<int>(number.digits);
  range.length = static_cast<int>(number.blanks);
  if (range.length == 0) return range;
  const double width = metrics_.horizontalAdvance(paragraph.left(number.digits + number.blanks));
  range.format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
  range.format.setFontLetterSpacing((number_width_ - width) / range.length);
  return range;
}

}  // namespace lectern::desktop
