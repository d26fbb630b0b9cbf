// The typography of rich text. A page that is only read has space between its lines, and verses with a
// hanging indent: the numbers are in the margin and the text is aligned.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPalette>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <memory>

#include "forms/rich_text.h"
#include "ui/desktop/text/text_positions.h"

namespace lectern::desktop {

class PageSetting {
 public:
  PageSetting(const QFont& font, const QString& text);

  // A new document with the text, for a page of that width. Because no widget shows it yet, Qt breaks
  // paragraphs into lines only when they come into view.
  std::unique_ptr<QTextDocument> Document(const QString& text, int width) const;

  // The formats of a verse's number, and of the blanks after it, which they widen to align the verse's text.
  // There are none for any other paragraph.
  QList<QTextLayout::FormatRange> NumberFormats(const QString& paragraph, const QPalette& palette) const;

  // The width of the margin in which the numbers are, with the gap after them, in pixels.
  int Gutter() const { return gutter_; }

 private:
  double Pixels(double share) const;  // of the text's size

  QFont font_;
  QFont number_font_;
  QFontMetricsF metrics_;
  QFontMetricsF number_metrics_;
  int gutter_ = 0;
};

// The number at the start of a verse's paragraph; 0 for any other paragraph.
int VerseOf(const QString& paragraph);

// Applies the runs to the layout of the paragraphs, without editing the document: there is nothing to undo.
// `setting` is that of a page, nullptr for an editor. Colours are made legible on the palette's base colour.
// Sizes are multiplied by `enlargement`.
void LayStyles(QTextDocument& document, const forms::TextRuns& runs, const TextPositions& positions,
               const PageSetting* setting, const QPalette& palette, double enlargement);

}  // namespace lectern::desktop
