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
  void PrepareForInput(QWidget& widget) const;

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

// A widget that is nothing but what is painted on it.
class PaintedWidget : public QWidget {
 public:
  using Paint = std::function<void(QPainter&, const QRect& exposed)>;

  PaintedWidget(QWidget* parent, Paint paint) : QWidget(parent), paint_(std::move(paint)) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Paint paint_;
};

}  // namespace lectern::desktop
