// The runs of style of a pane, laid over the paragraphs of a document. They are no part of the document: they
// cost no editing and cannot be undone.
#pragma once

#include <QPalette>
#include <QTextDocument>
#include <QTextLayout>

#include "forms/rich_text.h"
#include "ui/desktop/text/text_positions.h"

namespace lectern::desktop {

class PageSetting;

// `setting` of a page, nullptr for a sheet. Colours are made legible on the palette's base; sizes are taken
// that many times as large.
void LayStyles(QTextDocument& document, const forms::TextRuns& runs, const TextPositions& positions,
               const PageSetting* setting, const QPalette& palette, double enlargement);

}  // namespace lectern::desktop
