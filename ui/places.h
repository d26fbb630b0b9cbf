// The positions of the controls: a table for each window, with a line for each control. They are in pixels at
// 96 dpi (15 twips), within the control's parent, for the initial size of the window. Storage has its own
// anchor.
#pragma once

#include <span>
#include <string_view>

#include "forms/window.h"

namespace lectern::ui {

// How a text differs from the window's font.
// clang-format off
enum class Look {
  kPlain, kReading, kStrong, kHeading, kTitle, kSmall, kFlushRight, kCentred, kCentredStrong, kCentredSmall
};
// clang-format on

struct Place {
  std::string_view control;  // "lblc", "LBLMRK(2)"
  double left, top, width, height;
  forms::Anchor anchor = forms::Anchor::kTopLeft;
  Look look = Look::kPlain;
};

// Positions the controls of a window. Throws a std::logic_error with the control's name unless table and
// window have the same controls.
void Apply(std::span<const Place> places, forms::Window& window);

// Where a control lies while the desktop arranges it, in pixels; see forms::Arrangement.
struct Arranged {
  std::string_view control;
  double left, top, width, height;
  forms::Anchor anchor = forms::Anchor::kTopLeft;
  forms::TextRole role = forms::TextRole::kAsSet;
};

// Tells the controls of a window how they may be arranged. Throws a std::logic_error with the name of an
// unknown control.
void Apply(std::span<const Arranged> arrangement, forms::Window& window);

extern const std::span<const Place> kForm1Places;
extern const std::span<const Arranged> kForm1Arrangement;
extern const std::span<const Place> kForm4Places;

}  // namespace lectern::ui
