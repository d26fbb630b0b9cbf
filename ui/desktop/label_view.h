// A label: text that fits its place, and stands in as the text of an option that has none of its own.
#pragma once

#include "core/forms/label.h"
#include "ui/desktop/clickable_view.h"

namespace lectern::desktop {

class LabelView : public ClickableView {
 public:
  LabelView(forms::Label& label, WindowView& window, QWidget& parent)
      : ClickableView(label, window, parent), label_(label) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  bool SpeaksForItself() const override { return true; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  class Text;
  forms::Control* OptionBeside() const;

  forms::Label& label_;
  Text* text_ = nullptr;
};

}  // namespace lectern::desktop
