#include "ui/desktop/views/scroll_bar_view.h"

#include <QCursor>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>

#include "ui/desktop/app/style.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

namespace {

// One step for each notch of the wheel, and a ring around the bar while it has the focus.
class Bar : public QScrollBar {
 public:
  explicit Bar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
    setFocusPolicy(Qt::StrongFocus);
    setTracking(false);
  }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    constexpr int kNotch = 120;
    const QPoint turned = event->angleDelta();
    turned_ += turned.y() != 0 ? turned.y() : turned.x();
    for (; turned_ >= kNotch; turned_ -= kNotch) triggerAction(SliderSingleStepSub);
    for (; turned_ <= -kNotch; turned_ += kNotch) triggerAction(SliderSingleStepAdd);
    event->accept();
  }

  // Keys that go on and keys that go back, whichever way the bar lies.
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Right:
      case Qt::Key_Down:
        return triggerAction(SliderSingleStepAdd);
      case Qt::Key_Left:
      case Qt::Key_Up:
        return triggerAction(SliderSingleStepSub);
      case Qt::Key_PageDown:
        return triggerAction(SliderPageStepAdd);
      case Qt::Key_PageUp:
        return triggerAction(SliderPageStepSub);
      default:
        QScrollBar::keyPressEvent(event);  // Home and End
    }
  }

  void paintEvent(QPaintEvent* event) override {
    QScrollBar::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    DrawFocusRing(painter, rect(), palette());
  }

 private:
  int turned_ = 0;
};

}  // namespace

QWidget* ScrollBarView::Make(QWidget* parent) {
  widget_ = new Bar(parent);
  widget_->setSingleStep(1);
  widget_->setPageStep(bar_.LargeStep());
  connect(widget_, &QScrollBar::valueChanged, [this](int value) {
    if (bar_.InRange(value)) Act([this, value] { bar_.PersonScrolls(value); });
  });
  connect(widget_, &QScrollBar::sliderMoved, [this](int value) { TellValue(value); });
  return widget_;
}

void ScrollBarView::Apply() {
  if (widget_->isSliderDown()) return;  // the hand is on it
  widget_->setRange(bar_.Min, std::max(bar_.Max(), bar_.Min()));
  widget_->setValue(bar_.Value);
}

bool ScrollBarView::HandleWindowKey(const QKeyEvent& key) {
  const bool on = IsKey(key, QKeySequence(ToQString(bar_.KeyOn())));
  const bool back = IsKey(key, QKeySequence(ToQString(bar_.KeyBack())));
  if (!on && !back) return false;
  if (widget_->isEnabled()) {
    widget_->triggerAction(on ? QAbstractSlider::SliderSingleStepAdd : QAbstractSlider::SliderSingleStepSub);
  }
  return true;
}

void ScrollBarView::TellValue(int value) {
  const QString name = ToQString(bar_.AccessibleName());
  QToolTip::showText(QCursor::pos(),
                     name.isEmpty() ? QString::number(value) : name + u' ' + QString::number(value), widget_);
}

}  // namespace lectern::desktop
