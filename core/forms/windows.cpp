#include "core/forms/windows.h"

#include "core/forms/timer.h"

namespace lectern::forms {

std::vector<Timer*> Windows::Timers() const {
  std::vector<Timer*> timers;
  for (const Window* window : all_) {
    for (Control* control : window->Controls()) {
      if (control->GetKind() == Kind::kTimer) timers.push_back(static_cast<Timer*>(control));
    }
  }
  return timers;
}

void Windows::Enter(Window& window) { all_.push_back(&window); }
void Windows::Leave(Window& window) { std::erase(all_, &window); }

}  // namespace lectern::forms
