// Finding what a name of the driver's language stands for: "Form1", "Form1.LBLMRK(2)", "Form1.lst.List(3)".
// Names are matched without regard to case; reading a control of a window that was not touched yet makes
// the window, as any touch does.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/headless/values.h"
#include "ui/program.h"

namespace lectern::headless {

// A command that is not understood, and why.
struct Misunderstood {
  std::string reason;
};

struct Target {
  forms::Window* window = nullptr;
  forms::Control* control = nullptr;  // nullptr where the window itself is meant
  std::string property;
  std::vector<int> arguments;  // of the property

  forms::PropertyOwner& Owner() const {
    return control != nullptr ? static_cast<forms::PropertyOwner&>(*control) : *window;
  }
  std::string Name() const;  // "Form1.LBLMRK(2)"

  template <class Kind>
  Kind& As() const {
    auto* const cast = dynamic_cast<Kind*>(control);
    if (cast == nullptr) throw Misunderstood{Name() + " is no control of that kind"};
    return *cast;
  }
};

// Each throws Misunderstood where there is nothing of that name.
forms::Window& FindWindow(ui::Program& program, std::string_view name);
Target FindControl(ui::Program& program, std::string_view name);
Target FindProperty(ui::Program& program, std::string_view name);

}  // namespace lectern::headless
