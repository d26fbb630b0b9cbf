#include "ui/desktop/text/text_styles.h"

#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>

#include "ui/desktop/app/theme.h"
#include "ui/desktop/text/page_setting.h"

namespace lectern::desktop {

namespace {

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

void LayStyles(QTextDocument& document, const forms::TextRuns& runs, const TextPositions& positions,
               const PageSetting* setting, const QPalette& palette, double enlargement) {
  QTextCursor edit(&document);
  edit.beginEditBlock();
  auto run = runs.All().begin();
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    QList<QTextLayout::FormatRange> formats;
    if (setting != nullptr) {
      const QTextLayout::FormatRange gap = setting->NumberGap(block.text());
      if (gap.length > 0) formats.append(gap);
    }
    const int start = block.position();
    const int end = start + block.length();
    for (; run != runs.All().end() && positions.ToQt(run->start) < end; ++run) {
      const int run_start = std::max(positions.ToQt(run->start), start);
      const int run_end = std::min(positions.ToQt(run->End()), end);
      QTextLayout::FormatRange range;
      range.start = run_start - start;
      range.length = run_end - run_start;
      range.format = FormatOf(run->style, palette, enlargement);
      if (range.length > 0) formats.append(range);
      if (positions.ToQt(run->End()) > end) break;  // it goes on in the next paragraph
    }
    if (block.layout()->formats() != formats) block.layout()->setFormats(formats);
  }
  edit.endEditBlock();
}

}  // namespace lectern::desktop
