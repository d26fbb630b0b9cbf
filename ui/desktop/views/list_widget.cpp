#include "ui/desktop/views/list_widget.h"

#include <QKeyEvent>
#include <QStyledItemDelegate>

namespace lectern::desktop {

namespace {

// Rows with a little air between them.
class Rows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int kAir = 5;
    const QVariant font = index.data(Qt::FontRole);
    const QFontMetrics metrics(font.isValid() ? font.value<QFont>() : option.font);
    return {metrics.horizontalAdvance(index.data().toString()) + 2 * kAir, metrics.height() + kAir};
  }

 protected:
  // The selection says where the focus is; a frame around the row would say it twice.
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~QStyle::State_HasFocus;
  }
};

}  // namespace

ListWidget::ListWidget(QWidget* parent) : QListView(parent) {
  setItemDelegate(new Rows(this));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideRight);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
}

// The room that is too low for one more row stays empty, above and below: no row is cut.
void ListWidget::updateGeometries() {
  const int row = sizeHintForRow(0);
  const QMargins kept_empty = viewportMargins();
  const int height = viewport()->height() + kept_empty.top() + kept_empty.bottom();
  const int spare = row > 0 ? height % row : 0;
  const QMargins wanted(0, spare / 2, 0, spare - spare / 2);
  if (wanted != kept_empty) setViewportMargins(wanted);
  QListView::updateGeometries();
}

int ListWidget::SelectedRow() const {
  const QModelIndexList selected = selectionModel()->selectedIndexes();
  return selected.isEmpty() ? -1 : selected.first().row();
}

void ListWidget::ShowSelected(int row) {
  if (row == SelectedRow()) return;
  const QModelIndex index = row < 0 ? QModelIndex() : model()->index(row, 0);
  if (index.isValid()) {
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    scrollTo(index);
  } else {
    selectionModel()->clearSelection();
  }
}

void ListWidget::mousePressEvent(QMouseEvent* event) {
  pressed_row_ = indexAt(event->position().toPoint()).row();
  pressed(pressed_row_, *event);
}

void ListWidget::mouseMoveEvent(QMouseEvent* /*event*/) {}
void ListWidget::mouseReleaseEvent(QMouseEvent* /*event*/) {}

// The second press of two on different rows is a press like any other.
void ListWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  const int row = indexAt(event->position().toPoint()).row();
  if (row == pressed_row_ && event->button() == Qt::LeftButton) {
    double_clicked(row);
  } else {
    mousePressEvent(event);
  }
}

void ListWidget::Move(CursorAction action) {
  const int selected = SelectedRow();
  const QModelIndex target = moveCursor(action, Qt::NoModifier);
  // With nothing selected the first move selects where the list stands.
  const int row = selected < 0 && currentIndex().isValid() && action != MoveEnd && action != MoveHome
                      ? currentIndex().row()
                      : target.row();
  if (row >= 0 && row != selected) moved(row);
}

void ListWidget::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      return Move(MoveUp);
    case Qt::Key_Down:
      return Move(MoveDown);
    case Qt::Key_PageUp:
      return Move(MovePageUp);
    case Qt::Key_PageDown:
      return Move(MovePageDown);
    case Qt::Key_Home:
      return Move(MoveHome);
    case Qt::Key_End:
      return Move(MoveEnd);
    default:
      QListView::keyPressEvent(event);
  }
}

// Qt finds the row and makes it the current one.
void ListWidget::keyboardSearch(const QString& text) {
  const int selected = SelectedRow();
  QListView::keyboardSearch(text);
  const int row = currentIndex().row();
  if (row >= 0 && row != selected) moved(row);
}

}  // namespace lectern::desktop
