// What a person presses: buttons, flat and three-dimensional, and options of which one is set among
// those that lie in the same panel.
#pragma once

#include "forms/control.h"
#include "forms/picture.h"

namespace lectern::forms {

class Button : public TextControl {
 public:
  Button(Container& parent, Kind kind, std::string name, const Design& design)
      : TextControl(parent, kind, std::move(name), design),
        Caption(*this, "Caption", std::string(design.caption)) {}

  Property<std::string> Caption;
};

class CommandButton : public Button {
 public:
  CommandButton(Container& parent, std::string name, const Design& design = {})
      : Button(parent, Kind::kCommandButton, std::move(name), design) {}
};

// The three-dimensional button; a person's press is all that matters of it.
class SSCommand : public Button {
 public:
  SSCommand(Container& parent, std::string name, const Design& design = {})
      : Button(parent, Kind::kSSCommand, std::move(name), design), Picture(*this, "Picture") {}

  Property<forms::Picture> Picture;
};

// Setting one clears the others of its panel. A person's click sets it and counts even where it is set.
class Option : public Button {
 public:
  Option(Container& parent, Kind kind, std::string name, const Design& design);

  void PersonClicks() override;

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
