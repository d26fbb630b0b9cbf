// A panel with an optional heading that holds other controls.
#pragma once

#include "forms/control.h"

namespace lectern::forms {

struct FrameDesign {
  std::string_view caption{};
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
};

class Frame : public TextControl, public Container {
 public:
  using Design = FrameDesign;

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
