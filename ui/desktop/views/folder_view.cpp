#include "ui/desktop/views/folder_view.h"

#include "forms/window.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/list_widget.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

QWidget* FolderView::Make(QWidget* parent) {
  widget_ = new ListWidget(parent);
  widget_->setModel(&rows_);
  widget_->pressed = [this](int row, const QMouseEvent&) { widget_->ShowSelected(row); };
  widget_->double_clicked = [this](int row) { Open(row); };
  widget_->moved = [this](int row) { widget_->ShowSelected(row); };
  return widget_;
}

void FolderView::Apply() {
  if (!entries_.empty() && path_ == folders_.Path()) return;
  path_ = folders_.Path;
  entries_ = folders_.Entries();
  const std::string open = folders_.HostWindow().Files().HostPath(path_);
  QStringList rows;
  int open_row = -1;
  for (const forms::DirListBox::Entry& entry : entries_) {
    constexpr qsizetype kStep = 3;  // blanks
    if (entry.path == open) open_row = static_cast<int>(rows.size());
    rows.append(QString(kStep * entry.depth, u' ') + ToQString(entry.name));
  }
  rows_.setStringList(rows);
  widget_->ShowSelected(open_row);
}

void FolderView::Open(int row) {
  if (row < 0 || row >= static_cast<int>(entries_.size())) return;
  Act([this, path = entries_[static_cast<std::size_t>(row)].path] { folders_.PersonOpens(path); });
}

bool FolderView::HandleKey(const QKeyEvent& key) {
  if (KeyCode(key) != forms::kEnterKey) return false;
  Open(widget_->currentIndex().row());
  return true;
}

}  // namespace lectern::desktop
