// The widget of a page: a text that is read, selected and copied, and not edited. It scrolls by whole texts
// being put in its place without losing the reader's, and offers a menu of what can be copied.
#pragma once

#include <QTextEdit>
#include <functional>

namespace lectern::desktop {

class PageWidget : public QTextEdit {
 public:
  explicit PageWidget(QWidget* parent);

  // Whether the selection can be quoted, and putting the quotation on the clipboard; empty where the text
  // is not quoted.
  std::function<bool()> can_quote;
  std::function<void()> quote;

  // Turning the wheel with Ctrl: by so many steps the text is to be larger.
  std::function<void(int steps)> wants_larger;

  // What stands at the top of what is seen.
  struct Place {
    int position = 0;  // in the document
    int above = 0;     // pixels of its line that are out of sight
  };
  Place TopPlace() const;
  void ScrollTo(const Place& place);

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void SelectParagraphAt(const QPoint& point);

  int turned_ = 0;  // of a notch of the wheel
};

}  // namespace lectern::desktop
