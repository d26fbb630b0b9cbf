#include "ui/desktop/views/list_view.h"

#include <QAbstractListModel>
#include <QScrollBar>

#include "ui/desktop/views/list_widget.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

// The control's items as Qt wants them. What was added behind the last one joins; any other change is a new
// list.
class ListView::Items : public QAbstractListModel {
 public:
  Items(const forms::ItemList& list, const WindowView& window) : list_(list), window_(window) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }

  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole || window_.IsAbandoned()) return {};
    return ToQString(list_.List(index.row()));
  }

  // Whether the list is another one.
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
  const WindowView& window_;
  int rows_ = 0;
  unsigned generation_ = 0;
};

ListView::ListView(forms::ItemList& list, WindowView& window, QWidget& parent)
    : ControlView(list, window, parent), list_(list) {}

ListView::~ListView() = default;

QWidget* ListView::Make(QWidget* parent) {
  items_ = std::make_unique<Items>(list_, GetWindow());
  widget_ = new ListWidget(parent);
  widget_->setModel(items_.get());
  widget_->pressed = [this](int row, const QMouseEvent& mouse) {
    Act([&] { list_.PersonPresses(ToMouseEvent(mouse, mouse.button())); });
    if (mouse.button() != Qt::LeftButton) return;
    Act([&] { list_.PersonMovesSelection(row < list_.ListCount() ? row : -1); });
  };
  widget_->double_clicked = [this](int) { Act([this] { list_.DblClick(); }); };
  widget_->moved = [this](int row) {
    Act([&] {
      if (row < list_.ListCount()) list_.PersonMovesSelection(row);
    });
  };
  return widget_;
}

// A list that was made anew keeps its place where it still has one.
void ListView::Apply() {
  QScrollBar* const bar = widget_->verticalScrollBar();
  const int top = bar->value();
  if (items_->Follow()) bar->setValue(top);
  widget_->ShowSelected(list_.SelectedIndex());
}

}  // namespace lectern::desktop
