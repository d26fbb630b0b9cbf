// What holds for every window at once.
#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "base/text/characters.h"
#include "tests/kit/test_window.h"
#include "ui/program.h"

namespace lectern {
namespace {

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
Area AreaAround(const forms::PlacedControl& control) {
  if (const auto* const panel = dynamic_cast<const forms::PlacedControl*>(&control.Parent())) {
    return {0, 0, panel->Width, panel->Height};
  }
  const forms::Window& window = control.HostWindow();
  return {0, 0, window.ClientWidth(), window.ClientHeight()};
}

bool IsOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

// Whether one of the two is meant to lie over the other.
bool MayOverlap(const forms::PlacedControl& a, const forms::PlacedControl& b) {
  const std::string_view window = a.HostWindow().Name();
  const auto is_panel = [](const forms::PlacedControl& control) {
    return IsOneOf(control.Name(), {"picp", "frms", "frmc", "frmhelp", "Picture17", "Picture1", "Picture23",
                                    "frmd", "Picture4"});
  };
  if (window == "Form1" && is_panel(a) && (is_panel(b) || b.Name() == "rtxt")) return true;
  constexpr std::string_view kMeant[][3] = {
      {"Form1", "dwd2", "dwd"},  // a text and its shadow
      {"Form1", "ddf2", "ddf"},        {"Form1", "dex2", "dex"},
      {"Form4", "clrbox", "clrboxs"},  // a swatch and the label that is clicked
      {"Form4", "Frame7", "Frame3"},   // the colour bars, over the save slots
      {"Form5", "Image1", "Command1"},
  };
  return std::any_of(
             std::begin(kMeant), std::end(kMeant),
             [&](const auto& row) { return row[0] == window && row[1] == a.Name() && row[2] == b.Name(); }) ||
         (window == "Form3" && a.Name() == "picopen");  // covers the whole window
}

class Windows : public ::testing::Test {
 protected:
  Windows() { program_.Start(); }

  // Acts on each window and what lies on it; storage lies wholly outside.
  template <class Check>
  void ForEach(Check check) {
    for (const char* name : {"Form1", "Form2", "Form3", "Form4", "Form5"}) {
      const forms::Window& window = *program_.Touch(name);
      std::vector<const forms::PlacedControl*> controls;
      for (const forms::Control* control : window.Controls()) {
        const auto* const placed = dynamic_cast<const forms::PlacedControl*>(control);
        if (placed != nullptr && PlaceOf(*placed).Overlaps(AreaAround(*placed))) controls.push_back(placed);
      }
      check(window, controls);
    }
  }

 private:
  TestWindow test_;
  ui::Program program_{{test_.platform, test_.files}};
};

using Controls = std::vector<const forms::PlacedControl*>;

TEST_F(Windows, NameEachControlOnce) {
  ForEach([](const forms::Window& window, const Controls&) {
    std::set<std::string> names;
    for (const forms::Control* control : window.Controls()) {
      EXPECT_TRUE(names.insert(text::Lower(control->FullName())).second)
          << window.Name() << control->FullName();
    }
    EXPECT_GE(names.size(), 2U);
  });
}

TEST_F(Windows, LayEachControlInsideItsPanelAndNoneOverAnother) {
  ForEach([](const forms::Window& window, const Controls& controls) {
    for (std::size_t i = 0; i < controls.size(); ++i) {
      const forms::PlacedControl& a = *controls[i];
      EXPECT_TRUE(AreaAround(a).Holds(PlaceOf(a))) << window.Name() << ": " << a.FullName();
      for (std::size_t k = i + 1; k < controls.size(); ++k) {
        const forms::PlacedControl& b = *controls[k];
        if (&a.Parent() != &b.Parent() || MayOverlap(a, b) || MayOverlap(b, a)) continue;
        EXPECT_FALSE(PlaceOf(a).Overlaps(PlaceOf(b)))
            << window.Name() << ": " << a.FullName() << " and " << b.FullName();
      }
    }
  });
}

TEST_F(Windows, GiveButtonsOneHeight) {
  ForEach([](const forms::Window& window, const Controls& controls) {
    for (const forms::PlacedControl* control : controls) {
      if (control->GetKind() != forms::Kind::kCommandButton) continue;
      EXPECT_EQ(control->Height, 28 * forms::kTwipsPerPixel) << window.Name() << ": " << control->FullName();
    }
  });
}

}  // namespace
}  // namespace lectern
