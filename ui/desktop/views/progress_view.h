// A progress bar, without a text. A value past its maximum shows full.
#pragma once

#include <QProgressBar>
#include <algorithm>

#include "forms/bars_and_timer.h"
#include "ui/desktop/views/control_view.h"
#include "ui/desktop/views/window_view.h"

namespace lectern::desktop {

class ProgressView : public ControlView {
 public:
  ProgressView(forms::ProgressBar& bar, WindowView& window, QWidget& parent)
      : ControlView(bar, window, parent), bar_(bar) {}

 protected:
  QWidget* Make(QWidget* parent) override {
    widget_ = new QProgressBar(parent);
    widget_->setTextVisible(false);
    return widget_;
  }

  void Apply() override {
    const int end = std::max(bar_.Max(), bar_.Min() + 1);
    widget_->setRange(bar_.Min, end);
    widget_->setValue(std::clamp(bar_.Value(), bar_.Min(), end));
  }

 private:
  forms::ProgressBar& bar_;
  QProgressBar* widget_ = nullptr;
};

}  // namespace lectern::desktop
