#include "ui/desktop/text/page_widget.h"

#include <QAbstractTextDocumentLayout>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

#include "ui/desktop/views/keys.h"

namespace lectern::desktop {

PageWidget::PageWidget(QWidget* parent) : QTextEdit(parent) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  // The width that there is for the text stays the same, whatever its length.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

PageWidget::Place PageWidget::TopPlace() const {
  const QTextCursor top = cursorForPosition(QPoint(viewport()->width() / 2, 0));
  return {top.position(), -cursorRect(top).top()};
}

void PageWidget::ScrollTo(const Place& place) {
  QTextCursor at(document());
  at.setPosition(std::min(place.position, document()->characterCount() - 1));
  verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(at).top() + place.above);
}

void PageWidget::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) == 0) return QTextEdit::wheelEvent(event);
  constexpr int kNotch = 120;
  turned_ += event->angleDelta().y();
  const int steps = turned_ / kNotch;
  turned_ %= kNotch;
  event->accept();
  if (steps != 0 && wants_larger) wants_larger(steps);
}

// Where nothing is selected, what was pressed on is meant.
void PageWidget::contextMenuEvent(QContextMenuEvent* event) {
  const bool by_mouse = event->reason() == QContextMenuEvent::Mouse;
  if (by_mouse && !textCursor().hasSelection()) SelectParagraphAt(event->pos());
  QMenu* const menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (quote) {
    const QList<QAction*> actions = menu->actions();
    auto* const action = new QAction(tr("Copy with &Reference"), menu);
    action->setShortcut(QuoteKey());
    action->setEnabled(can_quote());
    connect(action, &QAction::triggered, this, [this] { quote(); });
    menu->insertAction(actions.size() > 1 ? actions[1] : nullptr, action);
  }
  menu->popup(by_mouse ? event->globalPos() : viewport()->mapToGlobal(cursorRect().bottomLeft()));
}

void PageWidget::SelectParagraphAt(const QPoint& point) {
  QTextCursor cursor = cursorForPosition(point);
  const QRectF paragraph = document()->documentLayout()->blockBoundingRect(cursor.block());
  if (point.y() + verticalScrollBar()->value() > paragraph.bottom()) return;
  cursor.movePosition(QTextCursor::StartOfBlock);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

}  // namespace lectern::desktop
