#include "ui/places.h"

#include <cassert>
#include <charconv>
#include <string>

#include "forms/label.h"
#include "forms/rich_text_box.h"

namespace lectern::ui {

namespace {

forms::Control* FindByFullName(const forms::Window& window, std::string_view name) {
  const std::size_t bracket = name.find('(');
  if (bracket == std::string_view::npos) return window.Find(name);
  int index = 0;
  std::from_chars(name.data() + bracket + 1, name.data() + name.size() - 1, index);
  return window.Find(name.substr(0, bracket), index);
}

void Set(forms::TextControl& control, Look look) {
  constexpr double kTitleSize = 18;  // points
  constexpr double kHeadingSize = 12;
  constexpr double kSmallSize = 8;
  const bool right = look == Look::kRight;
  const bool centre = look == Look::kCentre || look == Look::kCentreStrong || look == Look::kCentreSmall;
  if (auto* label = dynamic_cast<forms::Label*>(&control); label != nullptr && (right || centre)) {
    label->Alignment = right ? forms::kAlignRight : forms::kAlignCentre;
  }
  if (look == Look::kTitle) control.FontSize = kTitleSize;
  if (look == Look::kHeading) control.FontSize = kHeadingSize;
  if (look == Look::kReading) control.FontSize = forms::kReadingSize;
  if (look == Look::kSmall || look == Look::kCentreSmall) control.FontSize = kSmallSize;
  if (look == Look::kStrong || look == Look::kHeading || look == Look::kTitle ||
      look == Look::kCentreStrong) {
    control.FontBold = true;
  }
}

}  // namespace

void Apply(std::span<const Place> places, forms::Window& window) {
  for (const Place& place : places) {
    auto* const control = dynamic_cast<forms::PlacedControl*>(FindByFullName(window, place.control));
    assert(control != nullptr);
    control->Left = place.left * forms::kTwipsPerPixel;
    control->Top = place.top * forms::kTwipsPerPixel;
    control->Width = place.width * forms::kTwipsPerPixel;
    control->Height = place.height * forms::kTwipsPerPixel;
    if (auto* text = dynamic_cast<forms::TextControl*>(control)) Set(*text, place.look);
  }
}

}  // namespace lectern::ui
