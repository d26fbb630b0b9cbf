// Controls of plain text: labels, which a person reads, and boxes, in which a person types.
#pragma once

#include <string>
#include <vector>

#include "forms/control.h"

namespace lectern::forms {

inline constexpr int kAlignLeft = 0;
inline constexpr int kAlignRight = 1;
inline constexpr int kAlignCentre = 2;

struct LabelDesign {
  std::string_view caption{};
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  bool is_echo = false;
  Colour back_color = kButtonFace;
  Colour fore_color = kButtonText;
};

// A line or block of text. Labels also serve the program as signals: writing a new Caption runs the label's
// Change handler, which is the routine, with the caption as its argument.
class Label : public TextControl {
 public:
  using Design = LabelDesign;

  Label(Container& parent, std::string name, const Design& design = {})
      : TextControl(parent, Kind::kLabel, std::move(name), design),
        Caption(*this, "Caption", std::string(design.caption), {.change = [this] { Change(); }}),
        Alignment(*this, "Alignment", kAlignLeft) {}

  RuledProperty<std::string> Caption;
  Property<int> Alignment;
  Event<> Change;
};

struct TextBoxDesign {
  std::string_view text{};
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  bool multi_line = false;
};

// A box of one line or several.
class TextBox : public TextControl {
 public:
  using Design = TextBoxDesign;

  TextBox(Container& parent, std::string name, const Design& design = {})
      : TextControl(parent, Kind::kTextBox, std::move(name), design),
        Text(*this, "Text", std::string(design.text), {.change = [this] { Change(); }}),
        multi_line_(design.multi_line) {
    BackColor = kWindowBackground;
    ForeColor = kWindowText;
  }

  bool MultiLine() const { return multi_line_; }

  void PersonTypes(const std::string& text) override { Text = text; }

  RuledProperty<std::string> Text;
  Event<> Change;

 private:
  bool multi_line_;
};

// A box of text with a list. The text can be typed or picked; picking runs Click. Picking the entry that
// stands in the box runs nothing, unless its text was typed.
class ComboBox : public TextControl {
 public:
  using Design = PlainDesign;

  ComboBox(Container& parent, std::string name, const Design& design = {})
      : TextControl(parent, Kind::kComboBox, std::move(name), design),
        Text(*this, "Text", {}, {.change = [this] { is_typed_ = false; }}) {
    BackColor = kWindowBackground;
    ForeColor = kWindowText;
  }

  void AddItem(std::string item) {
    items_.push_back(std::move(item));
    TellView();
  }
  const std::vector<std::string>& Items() const { return items_; }

  void PersonTypes(const std::string& text) override {
    Text = text;
    is_typed_ = true;
  }
  void PersonChooses(const std::string& item) {
    if (Text == item && !is_typed_) return;
    Text = item;
    is_typed_ = false;
    Click();
  }

  RuledProperty<std::string> Text;

 private:
  std::vector<std::string> items_;
  bool is_typed_ = false;  // what stands in the box
};

}  // namespace lectern::forms
