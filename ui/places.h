// Where the controls of a window stand: a table of its own for each panel, one line a control, so that the
// look can change without touching what anything does. Places are in pixels at 96 dots an inch (15 twips),
// within the control's parent.
#pragma once

#include <span>
#include <string_view>

#include "forms/window.h"

namespace lectern::ui {

// How a text is set, beyond the window's own font.
enum class Look {
  kPlain,
  kReading,
  kStrong,
  kHeading,
  kTitle,
  kSmall,
  kRight,
  kCentre,
  kCentreStrong,
  kCentreSmall
};

struct Place {
  std::string_view control;  // "lblc", "LBLMRK(2)"
  double left, top, width, height;
  Look look = Look::kPlain;
};

// Gives each control of the table its place and its look. A name that the window does not have is an
// assertion: a table and its window belong together.
void Apply(std::span<const Place> places, forms::Window& window);

}  // namespace lectern::ui
