// Horizontal scroll bars. A drag takes effect when the thumb is released or at every position, as the control
// demands; a tooltip shows the value. The thumb for a value outside the range is at the end. A bar's own keys
// work wherever the focus is.
#include <QCursor>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>

#include "forms/bars_and_timer.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

namespace {

// Makes one step for each notch of the wheel, and shows a ring while it has the focus.
class SteppedBar : public QScrollBar {
 public:
  explicit SteppedBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
    setFocusPolicy(Qt::StrongFocus);
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

  // Up and Down step it as well.
  void keyPressEvent(QKeyEvent* event) override {
    const QPoint way = DirectionOf(event->key());
    const int steps = way.x() + way.y();
    if (steps != 0) return triggerAction(steps > 0 ? SliderSingleStepAdd : SliderSingleStepSub);
    if (event->key() == Qt::Key_PageDown) return triggerAction(SliderPageStepAdd);
    if (event->key() == Qt::Key_PageUp) return triggerAction(SliderPageStepSub);
    QScrollBar::keyPressEvent(event);  // Home and End
  }

  void paintEvent(QPaintEvent* event) override {
    QScrollBar::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    DrawFocusRing(painter, rect(), palette());
  }

 private:
  int turned_ = 0;  // of a notch
};

class ScrollBarView : public ViewOf<forms::HScrollBar> {
  using ViewOf::ViewOf;

  QWidget* Make(QWidget* parent) override {
    widget_ = new SteppedBar(parent);
    widget_->setTracking(Control().FollowsThumb());
    widget_->setSingleStep(1);
    widget_->setPageStep(1);
    connect(widget_, &QScrollBar::valueChanged, [this](int value) {
      if (Control().InRange(value)) Act([this, value] { Control().PersonScrolls(value); });
    });
    connect(widget_, &QScrollBar::sliderMoved, [this](int value) {
      const QString name = ToQString(Control().AccessibleName());
      const QString number = QString::number(Control().ShownNumber(value));
      QToolTip::showText(QCursor::pos(), name.isEmpty() ? number : name + u' ' + number, widget_);
    });
    return widget_;
  }

  void Apply() override {
    if (widget_->isSliderDown()) return;  // the user is dragging the thumb
    widget_->setRange(Control().Min, std::max(Control().Max(), Control().Min()));
    widget_->setValue(Control().Value);
  }

  bool HandleWindowKey(const QKeyEvent& key) override {
    const bool on = IsKey(key, QKeySequence(ToQString(Control().KeyOn())));
    const bool back = IsKey(key, QKeySequence(ToQString(Control().KeyBack())));
    if (!on && !back) return false;
    if (widget_->isEnabled())
      widget_->triggerAction(on ? QScrollBar::SliderSingleStepAdd : QScrollBar::SliderSingleStepSub);
    return true;
  }

  QScrollBar* widget_ = nullptr;
};

}  // namespace

ViewMaker* const kMakeScrollBarView = MakeViewOf<ScrollBarView, forms::HScrollBar>;

}  // namespace lectern::desktop
