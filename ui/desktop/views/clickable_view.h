// The base of labels, images and panels, which can be clicked although they are not buttons. If the control
// has a handler for clicks or presses, the keyboard reaches and presses it too; the menu key is the right
// button. The members of a control array whose handler needs the mouse button, such as the colours of a
// palette, are a single stop of the Tab key, and the arrow keys move between them.
#pragma once

#include <optional>
#include <vector>

#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

class ClickableView : public ControlView {
 public:
  using ControlView::ControlView;

 protected:
  // Whether the user draws on it: it can be pressed and follows the pointer.
  bool IsSurface() const { return Control().MouseDown && Control().MouseMove; }

  // Whether it can be pressed and is not a surface.
  bool IsButton() const { return Control().Click || (Control().MouseDown && !Control().MouseMove); }

  // Gives a new widget the focus policy that fits the control's handlers.
  void PrepareForInput(QWidget& widget);

  // The same event in the control's own scale.
  virtual forms::MouseEvent InScale(forms::MouseEvent mouse) const { return mouse; }

  bool HandleKey(const QKeyEvent& key) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsInRow() const { return IsButton() && !Control().Click && Control().Index() >= 0; }
  std::vector<ControlView*> Row() const;  // including this view
  bool MoveInRow(int key);
  void PressByKey(int button);
  bool Pressed(const QMouseEvent& event);
  bool Released(const QMouseEvent& event);
  bool Moved(const QMouseEvent& event);
  void MovesTo(const QMouseEvent& event);
  bool IsBeside(const QPoint& place) const;

  bool pressed_ = false;
  std::optional<QPoint> stroke_;  // where a stroke is, in pixels
};

}  // namespace lectern::desktop
