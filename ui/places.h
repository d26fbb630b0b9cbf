// Where the controls of a window stand: one table for each window, one line a control. Places are in pixels
// at 96 dots an inch (15 twips), within the control's parent, at the size with which the window starts. The
// controls of storage are marked as such by their anchor.
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
  kFlushRight,
  kCentred,
  kCentredStrong,
  kCentredSmall
};

struct Place {
  std::string_view control;  // "lblc", "LBLMRK(2)"
  double left, top, width, height;
  forms::Anchor anchor = forms::Anchor::kTopLeft;
  Look look = Look::kPlain;
};

// Puts the controls of a window in their places. Throws a std::logic_error that names the control where the
// table has one that the window has not, or lacks one of the window's.
void Apply(std::span<const Place> places, forms::Window& window);

extern const std::span<const Place> kForm1Places;
extern const std::span<const Place> kForm4Places;

}  // namespace lectern::ui
