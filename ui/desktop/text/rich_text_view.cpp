#include "ui/desktop/text/rich_text_view.h"

#include <algorithm>
#include <cassert>

#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

RichTextView::Changes RichTextView::TakeChanges(const QColor& ground) {
  const Shown now{Control().TextGeneration(),
                  Control().StyleGeneration(),
                  ground.rgb(),
                  {Control().SelStart, Control().SelLength}};
  const std::optional<Shown> before = std::exchange(shown_, now);
  if (!before) return {true, true, false, true};
  const bool text = before->text != now.text;
  return {.text = text,
          .styles = text || before->style != now.style || before->ground != now.ground,
          // Loading a text with styles adds one to each count. The program has set any further styles.
          .marks = now.style - before->style > now.text - before->text,
          .selection = text || before->selection != now.selection};
}

QTextCursor RichTextView::Selection(QTextDocument& document) const {
  const int last = document.characterCount() - 1;
  const auto start = static_cast<std::size_t>(Control().SelStart());
  const auto length = static_cast<std::size_t>(Control().SelLength());
  QTextCursor cursor(&document);
  cursor.setPosition(std::min(positions_.ToQt(start), last));
  cursor.setPosition(std::min(positions_.ToQt(start + length), last), QTextCursor::KeepAnchor);
  return cursor;
}

void RichTextView::SelectionMoved() {
  if (!GetEvents().AtWork()) GetWindow().WantsToCommit(*this);
}

void RichTextView::CommitSelection(const QTextCursor& cursor) {
  assert(shown_);
  // Several positions of the control may be one on the screen: only what a person selects changes them.
  const auto known = static_cast<std::size_t>(Control().SelStart());
  const auto known_end = known + static_cast<std::size_t>(Control().SelLength());
  if (positions_.ToQt(known) == cursor.selectionStart() &&
      positions_.ToQt(known_end) == cursor.selectionEnd()) {
    return;
  }
  const auto start = static_cast<int>(positions_.ToForms(cursor.selectionStart()));
  const int length = static_cast<int>(positions_.ToForms(cursor.selectionEnd())) - start;
  Control().PersonSelects(start, length);
  shown_->selection = {Control().SelStart, Control().SelLength};
}

std::optional<int> RichTextView::FirstMark() const {
  for (const forms::TextRun& run : Control().Runs().All()) {
    if (run.style.colour.has_value()) return positions_.ToQt(run.start);
  }
  return std::nullopt;
}

QRect RichTextView::OpenPart(const QAbstractScrollArea& pane) {
  const QWidget& viewport = *pane.viewport();
  QRect open = viewport.rect();
  for (const QObject* sibling : pane.parentWidget()->children()) {
    const auto* const over = qobject_cast<const QWidget*>(sibling);
    if (over == nullptr || over == &pane || over->isHidden()) continue;
    if (over->testAttribute(Qt::WA_TransparentForMouseEvents)) continue;  // a shadow
    const QPoint corner = viewport.mapFrom(pane.parentWidget(), over->pos());
    const QRect covered = QRect(corner, over->size()).intersected(open);
    if (covered.isEmpty()) continue;
    if (covered.top() - open.top() > open.bottom() - covered.bottom()) {
      open.setBottom(covered.top() - 1);
    } else {
      open.setTop(covered.bottom() + 1);
    }
  }
  return open;
}

bool RichTextView::Needs(const QKeyEvent& key) const {
  return KeyCode(key) == forms::kEnterKey && !Control().ReadOnly();
}

}  // namespace lectern::desktop
