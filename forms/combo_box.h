// A box of text with a list to pick from. Text can be typed or picked; picking runs Click.
#pragma once

#include <string>
#include <vector>

#include "forms/control.h"

namespace lectern::forms {

struct ComboBoxDesign {
  std::string_view text{};
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
};

class ComboBox : public TextControl {
 public:
  using Design = ComboBoxDesign;

  ComboBox(Container& parent, std::string name, const Design& design = {})
      : TextControl(parent, Kind::kComboBox, std::move(name), design),
        Text(*this, "Text", std::string(design.text)) {
    BackColor = kWindowBackground;
    ForeColor = kWindowText;
  }

  void AddItem(std::string item) {
    items_.push_back(std::move(item));
    TellView();
  }
  const std::vector<std::string>& Items() const { return items_; }

  void PersonTypes(const std::string& text) override { Text = text; }
  void PersonChooses(const std::string& item) {
    Text = item;
    Click();
  }

  Property<std::string> Text;

 private:
  std::vector<std::string> items_;
};

}  // namespace lectern::forms
