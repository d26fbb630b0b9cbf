// An entry of a window's menu bar. An entry made in a window stands in the bar, one made in another entry
// in that one's list. The caption "-" is a line between entries.
#pragma once

#include "forms/control.h"

namespace lectern::forms {

struct MenuDesign {
  std::string_view caption{};
  bool visible = true;
  bool enabled = true;
  bool checked = false;
  std::string_view shortcut{};  // such as "Ctrl+S"
};

class Menu : public Control, public Container {
 public:
  using Design = MenuDesign;

  Menu(Container& parent, std::string name, const Design& design = {})
      : Control(parent, Kind::kMenu, std::move(name), design),
        Caption(*this, "Caption", std::string(design.caption)),
        Checked(*this, "Checked", design.checked),
        shortcut_(design.shortcut) {}

  const std::string& Shortcut() const { return shortcut_; }  // such as "Ctrl+S"; "" for none

  Window& HostWindow() override { return Control::HostWindow(); }
  bool IsShown() const override { return Control::IsShown(); }
  std::string ContainerName() const override { return FullName(); }
  Container* Outer() const override { return &Parent(); }

  Property<std::string> Caption;
  Property<bool> Checked;

 private:
  std::string shortcut_;
};

}  // namespace lectern::forms
