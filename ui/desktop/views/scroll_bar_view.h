// A horizontal scroll bar. A drag counts when the thumb is let go; while it lasts the value under it is told
// in a tooltip. A value beyond the range has its thumb at the end. One that has keys of its own is stepped by
// them wherever the focus is.
#pragma once

#include <QScrollBar>

#include "forms/bars_and_timer.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

class ScrollBarView : public ControlView {
 public:
  ScrollBarView(forms::HScrollBar& bar, WindowView& window, QWidget& parent)
      : ControlView(bar, window, parent), bar_(bar) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  bool HandleWindowKey(const QKeyEvent& key) override;

 private:
  void TellValue(int value);

  forms::HScrollBar& bar_;
  QScrollBar* widget_ = nullptr;
};

}  // namespace lectern::desktop
