// List boxes, file lists and the list of folders.
#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStringListModel>
#include <QStyledItemDelegate>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/lists.h"
#include "forms/window.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

namespace {

constexpr int kBesideRow = 10;  // in a row

// Rows with a little space between them.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int kSpace = 5;
    const QVariant font = index.data(Qt::FontRole);
    const QFontMetrics metrics(font.isValid() ? font.value<QFont>() : option.font);
    return {metrics.horizontalAdvance(index.data().toString()) + 2 * kBesideRow, metrics.height() + kSpace};
  }

 protected:
  // No frame around the row: the selection already shows the focus.
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~QStyle::State_HasFocus;
    option->palette.setColor(QPalette::HighlightedText, option->palette.color(QPalette::Text));
  }
};

// A list that reports actions and selects nothing by itself. Its view then shows the new selection.
class ListWidget : public QListView {
 public:
  explicit ListWidget(QWidget* parent) : QListView(parent) {
    setItemDelegate(new RowDelegate(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
  }

  // Rows count from 0; -1 is the space below the last row.
  std::function<void(int row, const QMouseEvent& mouse)> pressed;
  std::function<void(int row)> double_clicked;
  std::function<void(int row)> moved;  // by a key, or by assistive technology

  // Selects the row, or nothing for -1. Scrolls to a newly selected row.
  void ShowSelected(int row) {
    if (row == SelectedRow()) return;
    is_following_ = true;
    const QModelIndex index = row < 0 ? QModelIndex() : model()->index(row, 0);
    if (index.isValid()) {
      selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
      scrollTo(index);
    } else {
      selectionModel()->clearSelection();
    }
    is_following_ = false;
  }

 protected:
  // Reports a row that was found by its letters or selected from outside.
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override {
    QListView::selectionChanged(selected, deselected);
    const int row = SelectedRow();
    if (row >= 0 && !is_following_) moved(row);
  }

  void mousePressEvent(QMouseEvent* event) override {
    pressed_row_ = indexAt(event->position().toPoint()).row();
    pressed(pressed_row_, *event);
  }
  void mouseMoveEvent(QMouseEvent* /*event*/) override {}
  void mouseReleaseEvent(QMouseEvent* /*event*/) override {}

  // Two quick presses on different rows are two single presses.
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    const int row = indexAt(event->position().toPoint()).row();
    if (row == pressed_row_ && event->button() == Qt::LeftButton) {
      double_clicked(row);
    } else {
      mousePressEvent(event);
    }
  }

  void keyPressEvent(QKeyEvent* event) override {
    constexpr std::pair<int, CursorAction> kMoves[] = {
        {Qt::Key_Up, MoveUp},         {Qt::Key_Down, MoveDown},
        {Qt::Key_PageUp, MovePageUp}, {Qt::Key_PageDown, MovePageDown},
        {Qt::Key_Home, MoveHome},     {Qt::Key_End, MoveEnd},
    };
    for (const auto& [key, action] : kMoves) {
      if (event->key() == key) return Move(action);
    }
    QListView::keyPressEvent(event);
  }

  // Leaves a little space above the first row, and so much below that only whole rows are visible.
  void updateGeometries() override {
    constexpr int kAbove = 4;
    const int row = sizeHintForRow(0);
    const QMargins margins = viewportMargins();
    const int height = viewport()->height() + margins.top() + margins.bottom() - kAbove;
    const QMargins wanted(0, kAbove, 0, row > 0 && height > row ? height % row : 0);
    if (wanted != margins) setViewportMargins(wanted);
    QListView::updateGeometries();
  }

 private:
  int SelectedRow() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
  }

  void Move(CursorAction action) {
    const int selected = SelectedRow();
    const QModelIndex target = moveCursor(action, Qt::NoModifier);
    // With nothing selected the first move selects the current row.
    const bool stays = selected < 0 && currentIndex().isValid() && action != MoveEnd && action != MoveHome;
    const int row = stays ? currentIndex().row() : target.row();
    if (row >= 0 && row != selected) moved(row);
  }

  int pressed_row_ = -1;
  bool is_following_ = false;  // the control's selection
};

// The control's items. Only visible items are read, so that long lists are cheap. Appended items are
// inserted; any other change resets the model.
class ItemModel : public QAbstractListModel {
 public:
  explicit ItemModel(const forms::ItemList& list) : list_(list) {
    const auto* const files = dynamic_cast<const forms::FileListBox*>(&list);
    if (files != nullptr && files->Pattern().starts_with("*."))
      ending_ = ToQString(files->Pattern().substr(1));
  }

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }

  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole) return {};
    const QString item = ToQString(list_.List(index.row()));
    return ending_.isEmpty() || !item.endsWith(ending_, Qt::CaseInsensitive) ? item
                                                                             : item.chopped(ending_.size());
  }

  // Applies the control's changes. Returns whether the model was reset.
  bool Follow() {
    const int count = list_.ListCount();
    if (generation_ != list_.Generation()) {
      beginResetModel();
      rows_ = count;
      generation_ = list_.Generation();
      endResetModel();
      return true;
    }
    if (count > rows_) {
      beginInsertRows({}, rows_, count - 1);
      rows_ = count;
      endInsertRows();
    }
    return false;
  }

 private:
  const forms::ItemList& list_;
  QString ending_;  // which all files of the list share, such as ".bkm"; not shown
  int rows_ = 0;
  unsigned generation_ = 0;
};

class ListView : public ViewOf<forms::ItemList> {
 public:
  ListView(forms::ItemList& list, WindowView& window, QWidget& parent)
      : ViewOf(list, window, parent), items_(list) {}

 protected:
  QWidget* Make(QWidget* parent) override {
    widget_ = new ListWidget(parent);
    widget_->setModel(&items_);
    widget_->pressed = [this](int row, const QMouseEvent& mouse) {
      Act([&] { Control().PersonPresses(ToMouseEvent(mouse, mouse.button())); });
      if (mouse.button() != Qt::LeftButton) return;
      Act([&] { Control().PersonMovesSelection(row < Control().ListCount() ? row : -1); });
    };
    widget_->double_clicked = [this](int) { DoubleClicked(); };
    widget_->moved = [this](int row) {
      Act([&] {
        if (row < Control().ListCount()) Control().PersonMovesSelection(row);
      });
    };
    return widget_;
  }

  // After a reset the list keeps its scroll position if possible.
  void Apply() override {
    QScrollBar* const bar = widget_->verticalScrollBar();
    const int top = bar->value();
    if (items_.Follow()) bar->setValue(top);
    widget_->ShowSelected(Control().SelectedIndex());
  }

  Ground GetGround() const override { return Ground::kField; }

 private:
  // A double click on a file opens it, as the main button of its panel does.
  void DoubleClicked() {
    const auto is_main = [](const forms::Control* button) { return button->IsDefaultButton(); };
    Act([this] { Control().DblClick(); });
    if (Control().GetKind() != forms::Kind::kFileListBox || Control().DblClick) return;
    Act([&] { Control().HostWindow().PressButtonIn(Control().Parent(), is_main); });
  }

  ItemModel items_;
  ListWidget* widget_ = nullptr;
};

// The open folder, its parents and its subfolders, indented by depth. A double click or Enter opens one.
class FolderView : public ViewOf<forms::DirListBox> {
  using ViewOf::ViewOf;

  QWidget* Make(QWidget* parent) override {
    widget_ = new ListWidget(parent);
    widget_->setModel(&rows_);
    widget_->pressed = [this](int row, const QMouseEvent&) { widget_->ShowSelected(row); };
    widget_->double_clicked = [this](int row) { Open(row); };
    widget_->moved = [this](int row) { widget_->ShowSelected(row); };
    return widget_;
  }

  void Apply() override {
    if (!entries_.empty() && path_ == Control().Path()) return;
    path_ = Control().Path;
    entries_ = Control().Entries();
    const std::string open = Control().HostWindow().Files().HostPath(path_);
    QStringList rows;
    int open_row = -1;
    for (const forms::DirListBox::Entry& entry : entries_) {
      constexpr qsizetype kIndent = 3;  // blanks
      if (entry.path == open) open_row = static_cast<int>(rows.size());
      rows.append(QString(kIndent * entry.depth, u' ') + ToQString(entry.name));
    }
    rows_.setStringList(rows);
    widget_->ShowSelected(open_row);
  }

  Ground GetGround() const override { return Ground::kField; }

  bool HandleKey(const QKeyEvent& key) override {
    if (KeyCode(key) != forms::kEnterKey) return false;
    Open(widget_->currentIndex().row());
    return true;
  }

  void Open(int row) {
    if (row < 0 || row >= static_cast<int>(entries_.size())) return;
    Act([this, path = entries_[static_cast<std::size_t>(row)].path] { Control().PersonOpens(path); });
  }

  std::vector<forms::DirListBox::Entry> entries_;  // as shown
  std::string path_;
  QStringListModel rows_;
  ListWidget* widget_ = nullptr;
};

}  // namespace

ViewMaker* const kMakeListView = MakeViewOf<ListView, forms::ItemList>;
ViewMaker* const kMakeFolderView = MakeViewOf<FolderView, forms::DirListBox>;

}  // namespace lectern::desktop
