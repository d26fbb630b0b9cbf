// What holds for every window at once.
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "base/text/letter_case.h"
#include "tests/kit/test_window.h"
#include "ui/program.h"

namespace lectern {
namespace {

class Windows : public ::testing::Test {
 protected:
  Windows() { program_.Start(); }

  std::vector<forms::Window*> All() {
    std::vector<forms::Window*> all;
    for (const char* name : {"Form1", "Form2", "Form3", "Form4", "Form5"})
      all.push_back(program_.Touch(name));
    return all;
  }

 private:
  TestWindow test_;
  ui::Program program_{{test_.platform, test_.files}};
};

struct Area {
  double left, top, right, bottom;

  bool Overlaps(const Area& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
  bool Holds(const Area& other) const {
    return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
  }
};

Area PlaceOf(const forms::PlacedControl& control) {
  return {control.Left, control.Top, control.Left + control.Width, control.Top + control.Height};
}

// The inside of what the control lies in.
Area RoomOf(const forms::PlacedControl& control) {
  if (const auto* const panel = dynamic_cast<const forms::PlacedControl*>(&control.Parent())) {
    return {0, 0, panel->Width, panel->Height};
  }
  const forms::Window& window = control.HostWindow();
  return {0, 0, window.ClientWidth(), window.ClientHeight()};
}

// Those of the window that have a place within what they lie in. What stands wholly outside is storage.
std::vector<const forms::PlacedControl*> InReach(const forms::Window& window) {
  std::vector<const forms::PlacedControl*> found;
  for (const forms::Control* control : window.Controls()) {
    const auto* const placed = dynamic_cast<const forms::PlacedControl*>(control);
    if (placed != nullptr && PlaceOf(*placed).Overlaps(RoomOf(*placed))) found.push_back(placed);
  }
  return found;
}

bool IsOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

// Whether one of the two is meant to lie over the other.
bool MayOverlap(const forms::PlacedControl& a, const forms::PlacedControl& b) {
  const std::string_view window = a.HostWindow().Name();
  if (window == "Form1") {
    const auto is_panel = [](const forms::PlacedControl& control) {
      return IsOneOf(control.Name(), {"picp", "frms", "frmc", "frmhelp", "Picture17", "Picture1", "Picture23",
                                      "frmd", "Picture4"});
    };
    if (is_panel(a) && (is_panel(b) || b.Name() == "rtxt")) return true;
    if (is_panel(b) && a.Name() == "rtxt") return true;
  }
  constexpr std::array<std::array<std::string_view, 3>, 6> kMeant = {{
      {"Form1", "dwd2", "dwd"},  // a text and its shadow
      {"Form1", "ddf2", "ddf"},
      {"Form1", "dex2", "dex"},
      {"Form4", "clrbox", "clrboxs"},  // a swatch and the label that is clicked
      {"Form4", "Frame7", "Frame3"},   // the colour bars, over the save slots
      {"Form5", "Image1", "Command1"},
  }};
  for (const auto& [form, one, other] : kMeant) {
    if (form == window &&
        ((a.Name() == one && b.Name() == other) || (a.Name() == other && b.Name() == one))) {
      return true;
    }
  }
  return window == "Form3" && (a.Name() == "picopen" || b.Name() == "picopen");  // covers the whole window
}

TEST_F(Windows, NameEachControlOnce) {
  for (const forms::Window* window : All()) {
    std::set<std::string> names;
    for (const forms::Control* control : window->Controls()) {
      EXPECT_TRUE(names.insert(text::Lower(control->FullName())).second)
          << window->Name() << ": " << control->FullName();
    }
    EXPECT_GE(names.size(), 2U) << window->Name();
  }
}

TEST_F(Windows, KeepEachControlInsideItsPanel) {
  for (const forms::Window* window : All()) {
    for (const forms::PlacedControl* control : InReach(*window)) {
      EXPECT_TRUE(RoomOf(*control).Holds(PlaceOf(*control))) << window->Name() << ": " << control->FullName();
    }
  }
}

TEST_F(Windows, LayNoControlOverAnother) {
  for (const forms::Window* window : All()) {
    const std::vector<const forms::PlacedControl*> controls = InReach(*window);
    for (std::size_t i = 0; i < controls.size(); ++i) {
      for (std::size_t k = i + 1; k < controls.size(); ++k) {
        const forms::PlacedControl& a = *controls[i];
        const forms::PlacedControl& b = *controls[k];
        if (&a.Parent() != &b.Parent() || MayOverlap(a, b)) continue;
        EXPECT_FALSE(PlaceOf(a).Overlaps(PlaceOf(b)))
            << window->Name() << ": " << a.FullName() << " and " << b.FullName();
      }
    }
  }
}

// One height for all buttons with a caption.
TEST_F(Windows, SetButtonsOfOneHeight) {
  for (const forms::Window* window : All()) {
    for (const forms::PlacedControl* control : InReach(*window)) {
      if (control->GetKind() != forms::Kind::kCommandButton) continue;
      EXPECT_EQ(control->Height, 28 * forms::kTwipsPerPixel) << window->Name() << ": " << control->FullName();
    }
  }
}

}  // namespace
}  // namespace lectern
