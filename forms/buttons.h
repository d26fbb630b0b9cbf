// What a person presses: buttons, flat and three-dimensional, and options of which one is set among
// those that lie in the same panel.
#pragma once

#include "forms/control.h"
#include "forms/picture.h"

namespace lectern::forms {

struct ButtonDesign {
  std::string_view caption{};
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  bool is_default = false;
  bool is_cancel = false;
};

struct OptionDesign {
  std::string_view caption{};
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  bool checked = false;
};

class Button : public TextControl {
 public:
  Button(Container& parent, Kind kind, std::string name, const CommonDesign& design)
      : TextControl(parent, kind, std::move(name), design),
        Caption(*this, "Caption", std::string(design.caption)) {}

  Property<std::string> Caption;
};

class CommandButton : public Button {
 public:
  using Design = ButtonDesign;

  CommandButton(Container& parent, std::string name, const Design& design = {})
      : Button(parent, Kind::kCommandButton, std::move(name), design) {}
};

// The three-dimensional button; a person's press is all that matters of it.
class SSCommand : public Button {
 public:
  using Design = ButtonDesign;

  SSCommand(Container& parent, std::string name, const Design& design = {})
      : Button(parent, Kind::kSSCommand, std::move(name), design), Picture(*this, "Picture") {}

  Property<forms::Picture> Picture;
};

// Setting one clears the others of its panel. A person's click sets it and counts even where it is set.
class Option : public Button {
 public:
  using Design = OptionDesign;

  Option(Container& parent, Kind kind, std::string name, const Design& design)
      : Button(parent, kind, std::move(name), design),
        Value(*this, "Value", design.checked, {.change = [this] {
          if (!Value) return;
          for (Control* sibling : Parent().Children()) {
            if (auto* other = dynamic_cast<Option*>(sibling); other != nullptr && other != this) {
              other->Value = false;
            }
          }
        }}) {}

  void PersonClicks() override {
    PersonPresses({});
    Value = true;
    Click();
  }

  RuledProperty<bool> Value;
};

class OptionButton : public Option {
 public:
  OptionButton(Container& parent, std::string name, const Design& design = {})
      : Option(parent, Kind::kOptionButton, std::move(name), design) {}
};

class SSOption : public Option {
 public:
  SSOption(Container& parent, std::string name, const Design& design = {})
      : Option(parent, Kind::kSSOption, std::move(name), design) {}
};

}  // namespace lectern::forms
