// A label: text that fits its place, and stands in as the text of an option that has none of its own.
#pragma once

#include "forms/text_controls.h"
#include "ui/desktop/views/clickable_view.h"
#include "ui/desktop/views/design_text.h"

namespace lectern::desktop {

class LabelView : public ClickableView {
 public:
  LabelView(forms::Label& label, WindowView& window, QWidget& parent)
      : ClickableView(label, window, parent),
        label_(label),
        design_text_(IsDesignText(label.Caption) ? label.Caption() : "") {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  bool SpeaksForItself() const override { return true; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  class Text;
  forms::Control* OptionBeside() const;

  forms::Label& label_;
  std::string design_text_;  // not shown; anything else may be a name that a person gave
  Text* text_ = nullptr;
};

}  // namespace lectern::desktop
