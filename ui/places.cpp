#include "ui/places.h"

#include <charconv>
#include <set>
#include <stdexcept>
#include <string>

#include "forms/rich_text_box.h"
#include "forms/text_controls.h"

namespace lectern::ui {

namespace {

forms::PlacedControl& FindByFullName(const forms::Window& window, std::string_view name) {
  const std::size_t bracket = name.find('(');
  int index = -1;
  if (bracket != std::string_view::npos) {
    std::from_chars(name.data() + bracket + 1, name.data() + name.size() - 1, index);
  }
  auto* const control = dynamic_cast<forms::PlacedControl*>(window.Find(name.substr(0, bracket), index));
  if (control == nullptr) {
    throw std::logic_error(window.Name() + ": the table of places has an unknown control " +
                           std::string(name));
  }
  return *control;
}

void Set(forms::TextControl& control, Look look) {
  constexpr double kTitleSize = 18;  // points
  constexpr double kHeadingSize = 12;
  constexpr double kSmallSize = 8;
  const bool centred = look == Look::kCentred || look == Look::kCentredStrong || look == Look::kCentredSmall;
  if (auto* label = dynamic_cast<forms::Label*>(&control)) {
    if (look == Look::kFlushRight) label->Alignment = forms::kAlignRight;
    if (centred) label->Alignment = forms::kAlignCentre;
  }
  if (look == Look::kTitle) control.FontSize = kTitleSize;
  if (look == Look::kHeading) control.FontSize = kHeadingSize;
  if (look == Look::kReading) control.FontSize = forms::kReadingSize;
  if (look == Look::kSmall || look == Look::kCentredSmall) control.FontSize = kSmallSize;
  if (look == Look::kStrong || look == Look::kHeading || look == Look::kTitle ||
      look == Look::kCentredStrong) {
    control.FontBold = true;
  }
}

}  // namespace

void Apply(std::span<const Place> places, forms::Window& window) {
  std::set<const forms::Control*> placed;
  for (const Place& place : places) {
    forms::PlacedControl& control = FindByFullName(window, place.control);
    placed.insert(&control);
    control.Left = place.left * forms::kTwipsPerPixel;
    control.Top = place.top * forms::kTwipsPerPixel;
    control.Width = place.width * forms::kTwipsPerPixel;
    control.Height = place.height * forms::kTwipsPerPixel;
    control.AnchorTo(place.anchor);
    if (auto* text = dynamic_cast<forms::TextControl*>(&control)) Set(*text, place.look);
  }
  for (const forms::Control* control : window.Controls()) {
    if (dynamic_cast<const forms::PlacedControl*>(control) == nullptr || placed.contains(control)) continue;
    throw std::logic_error(window.Name() + ": the table of places lacks " + control->FullName());
  }
}

void Apply(std::span<const Arranged> arrangement, forms::Window& window) {
  for (const Arranged& place : arrangement) {
    forms::PlacedControl& control = FindByFullName(window, place.control);
    control.Arrange({place.left * forms::kTwipsPerPixel, place.top * forms::kTwipsPerPixel,
                     place.width * forms::kTwipsPerPixel, place.height * forms::kTwipsPerPixel,
                     place.anchor});
    control.ShowTextAs(place.role);
  }
}

}  // namespace lectern::ui
