// A line or block of text that a person reads. Labels also serve the program as signals: writing a new
// Caption runs the label's Change handler, which is the routine, with the caption as its argument.
#pragma once

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

}  // namespace lectern::forms
