#include "ui/desktop/desk/in_step.h"

#include <utility>

namespace lectern::desktop {

InStep::InStep(VersePage& first, VersePage& second) : first_(first), second_(second) {
  first_.on_scroll = [this] { Follow(first_, second_); };
  second_.on_scroll = [this] { Follow(second_, first_); };
}

InStep::~InStep() {
  first_.on_scroll = [] {};
  second_.on_scroll = [] {};
}

void InStep::TurnOn(bool on) {
  if (std::exchange(on_, on) != on) Align();
  if (on && second_.MarkedVerse() != first_.MarkedVerse()) second_.MarkVerse(first_.MarkedVerse());
}

void InStep::Align() { Follow(first_, second_); }

void InStep::Follow(const VersePage& leader, VersePage& follower) {
  if (!on_ || following_) return;
  following_ = true;
  follower.ScrollToVerse(leader.VerseAtTop());
  following_ = false;
}

}  // namespace lectern::desktop
