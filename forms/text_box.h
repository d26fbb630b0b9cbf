// A box of plain text that a person edits: one line, or several.
#pragma once

#include "forms/control.h"

namespace lectern::forms {

struct TextBoxDesign {
  std::string_view text{};
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  bool multi_line = false;
  bool read_only = false;  // a person may select and copy, not edit
};

class TextBox : public TextControl {
 public:
  using Design = TextBoxDesign;

  TextBox(Container& parent, std::string name, const Design& design = {})
      : TextControl(parent, Kind::kTextBox, std::move(name), design),
        Text(*this, "Text", std::string(design.text), {.change = [this] { Change(); }}),
        multi_line_(design.multi_line),
        read_only_(design.read_only) {
    BackColor = kWindowBackground;
    ForeColor = kWindowText;
  }

  bool MultiLine() const { return multi_line_; }
  bool ReadOnly() const { return read_only_; }

  void PersonTypes(const std::string& text) override {
    if (!read_only_) Text = text;
  }

  RuledProperty<std::string> Text;
  Event<> Change;

 private:
  bool multi_line_;
  bool read_only_;
};

}  // namespace lectern::forms
