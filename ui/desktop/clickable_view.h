// What is pressed where it lies, without being a button: labels, images, picture boxes. One whose control has
// a handler for clicks can be reached and pressed by the keyboard too.
#pragma once

#include "ui/desktop/control_view.h"

namespace lectern::desktop {

class ClickableView : public ControlView {
 public:
  using ControlView::ControlView;

 protected:
  // Gives a new widget the focus policy that the control's handlers call for.
  void PrepareForInput(QWidget& widget);

  // The position of a mouse event, in the control's own scale.
  virtual forms::MouseEvent InScale(forms::MouseEvent mouse) const { return mouse; }

  bool HandleKey(const QKeyEvent& key) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Pressed(const QMouseEvent& event);
  bool Released(const QMouseEvent& event);
  bool Moved(const QMouseEvent& event);

  bool pressed_ = false;
};

}  // namespace lectern::desktop
