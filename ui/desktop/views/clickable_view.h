// What is pressed where it lies without being a button: labels, images, picture boxes. Where the control has
// a handler for clicks or presses, the keyboard reaches and presses it too, with the menu key for the mouse's
// right button. Several of a control array whose handler wants to know the mouse's button, such as the
// colours of a palette, are one stop of the Tab key; the arrows go through them.
#pragma once

#include <vector>

#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

class ClickableView : public ControlView {
 public:
  using ControlView::ControlView;

 protected:
  // Whether it can be pressed and does not follow the pointer.
  bool IsButton() const;

  // Whether it is drawn on: it can be pressed and follows the pointer.
  bool IsSurface() const { return Control().MouseDown && Control().MouseMove; }

  // Gives a new widget the focus policy that the control's handlers call for.
  void PrepareForInput(QWidget& widget);

  // The same event with its place in the control's own scale.
  virtual forms::MouseEvent InScale(forms::MouseEvent mouse) const { return mouse; }

  bool HandleKey(const QKeyEvent& key) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsOneOfARow() const { return IsButton() && !Control().Click && Control().Index() >= 0; }
  std::vector<ControlView*> Row() const;  // with this one
  bool MoveInRow(int key);
  void BecomeStopOfRow();
  void PressByKey(int button);
  bool Pressed(const QMouseEvent& event);
  bool Released(const QMouseEvent& event);
  bool Moved(const QMouseEvent& event);

  bool pressed_ = false;
};

}  // namespace lectern::desktop
