// How a pane that is only read sets its text: with some air between the lines, and with verses hung out to
// the left, their numbers in the margin and their text in line.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <memory>

namespace lectern::desktop {

class PageSetting {
 public:
  // For a text in that font.
  PageSetting(const QFont& font, const QString& text);

  // A new document with the text, paragraph by paragraph, for a pane of that width. As nothing shows it yet,
  // none of it is broken into lines before it comes in sight.
  std::unique_ptr<QTextDocument> Document(const QString& text, int width) const;

  // What widens the blanks behind the number of a verse, so that its text begins where all others do; of no
  // length for any other paragraph.
  QTextLayout::FormatRange NumberGap(const QString& paragraph) const;

 private:
  QFont font_;
  double number_width_;  // of a verse's number and the gap behind it, in pixels
  QFontMetricsF metrics_;
};

}  // namespace lectern::desktop
