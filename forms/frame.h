// A panel with an optional heading that holds other controls.
#pragma once

#include "forms/control.h"

namespace lectern::forms {

class Frame : public TextControl, public Container {
 public:
  Frame(Container& parent, std::string name, const Design& design = {})
      : TextControl(parent, Kind::kFrame, std::move(name), design),
        Caption(*this, "Caption", std::string(design.caption)) {}

  Window& HostWindow() override { return Control::HostWindow(); }
  bool IsShown() const override { return Control::IsShown(); }
  std::string ContainerName() const override { return FullName(); }
  Container* Outer() const override { return &Parent(); }

  Property<std::string> Caption;
};

}  // namespace lectern::forms
