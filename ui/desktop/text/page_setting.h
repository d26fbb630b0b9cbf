// How text is set. A page that is only read has some space between the lines, and verses with a hanging
// indent: their numbers in the margin and their text aligned. Runs of style are laid over the paragraphs of
// pages and sheets.
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
  // For a page with that text in that font.
  PageSetting(const QFont& font, const QString& text);

  // A new document with the text, for a page of that width. As nothing shows it yet, paragraphs are broken
  // into lines only when they come into sight.
  std::unique_ptr<QTextDocument> Document(const QString& text, int width) const;

  // The format that widens the blanks after a verse's number, so that its text is aligned with the others; of
  // length 0 for any other paragraph.
  QTextLayout::FormatRange NumberGap(const QString& paragraph) const;

 private:
  QFont font_;
  double number_width_;  // of a verse's number and the gap after it, in pixels
  QFontMetricsF metrics_;
};

// Lays the runs over the paragraphs of a document. They do not become part of it: they cost no editing and
// cannot be undone. `setting` is that of a page, nullptr for a sheet. Colours are made legible on the
// palette's base, and sizes multiplied by `enlargement`.
void LayStyles(QTextDocument& document, const forms::TextRuns& runs, const TextPositions& positions,
               const PageSetting* setting, const QPalette& palette, double enlargement);

}  // namespace lectern::desktop
