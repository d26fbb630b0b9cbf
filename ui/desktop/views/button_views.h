// Buttons, and options of which one is set.
#pragma once

#include <QPushButton>
#include <QRadioButton>

#include "forms/buttons.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

class ButtonView : public ControlView {
 public:
  ButtonView(forms::Button& button, WindowView& window, QWidget& parent)
      : ControlView(button, window, parent), button_(button) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  Ground GetGround() const override { return Ground::kButton; }
  QFont WantedFont() const override;
  bool SpeaksForItself() const override { return !button_.Caption->empty(); }
  bool HandleKey(const QKeyEvent& key) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  forms::Button& button_;
  QPushButton* widget_ = nullptr;
  bool pressed_by_mouse_ = false;
  forms::Picture picture_;  // as shown on it
};

class OptionView : public ControlView {
 public:
  OptionView(forms::Option& option, WindowView& window, QWidget& parent)
      : ControlView(option, window, parent), option_(option) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  QFont WantedFont() const override;
  bool SpeaksForItself() const override { return !option_.Caption->empty(); }
  bool HandleKey(const QKeyEvent& key) override;

 private:
  void MoveTo(int step);

  forms::Option& option_;
  QRadioButton* widget_ = nullptr;
};

}  // namespace lectern::desktop
