// Controls that hold other controls: what they have in common, and frames and menu entries. The third of them
// is the picture box.
#pragma once

#include <string>

#include "forms/control.h"

namespace lectern::forms {

// A control of the kind that it derives from, and a container besides.
template <class Base>
class Holding : public Base, public Container {
 public:
  using Base::Base;

  Window& HostWindow() override { return Base::HostWindow(); }
  bool IsShown() const override { return Base::IsShown(); }
  std::string ContainerName() const override { return Base::FullName(); }
  Container* Outer() const override { return &this->Parent(); }
};

struct FrameDesign {
  std::string_view caption{};
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
};

// A panel with an optional heading.
class Frame : public Holding<TextControl> {
 public:
  using Design = FrameDesign;

  Frame(Container& parent, std::string name, const Design& design = {})
      : Holding(parent, Kind::kFrame, std::move(name), design),
        Caption(*this, "Caption", std::string(design.caption)) {}

  Property<std::string> Caption;
};

struct MenuDesign {
  std::string_view caption{};
  bool visible = true;
  bool enabled = true;
  bool checked = false;
  std::string_view shortcut{};  // such as "Ctrl+S"
};

// An entry of a window's menu bar. An entry made in a window stands in the bar, one made in another entry in
// that one's list. The caption "-" is a line between entries.
class Menu : public Holding<Control> {
 public:
  using Design = MenuDesign;

  Menu(Container& parent, std::string name, const Design& design = {})
      : Holding(parent, Kind::kMenu, std::move(name), design),
        Caption(*this, "Caption", std::string(design.caption)),
        Checked(*this, "Checked", design.checked),
        shortcut_(design.shortcut) {}

  const std::string& Shortcut() const { return shortcut_; }  // such as "Ctrl+S"; "" for none

  Property<std::string> Caption;
  Property<bool> Checked;

 private:
  std::string shortcut_;
};

}  // namespace lectern::forms
