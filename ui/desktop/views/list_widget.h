// A list of texts in even rows. It never selects anything by itself: what the person does is handed to
// whoever made it, who shows the selection that comes of it.
#pragma once

#include <QListView>
#include <QMouseEvent>
#include <functional>

namespace lectern::desktop {

class ListWidget : public QListView {
 public:
  explicit ListWidget(QWidget* parent);

  // Rows count from 0; -1 is below the last one.
  std::function<void(int row, const QMouseEvent& mouse)> pressed;
  std::function<void(int row)> double_clicked;
  std::function<void(int row)> moved;  // by a key

  // Selects the row, or nothing for -1; a row that was not selected before is brought in sight.
  void ShowSelected(int row);

  void keyboardSearch(const QString& text) override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void updateGeometries() override;

 private:
  int SelectedRow() const;
  void Move(CursorAction action);

  int pressed_row_ = -1;
};

}  // namespace lectern::desktop
