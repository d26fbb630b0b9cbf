#include "forms/windows.h"

#include "forms/timer.h"

namespace lectern::forms {

void Windows::FindTimers() {
  timers_.clear();
  for (const Window* window : all_) {
    for (Control* control : window->Controls()) {
      if (control->GetKind() == Kind::kTimer) timers_.push_back(static_cast<Timer*>(control));
    }
  }
}

void Windows::Enter(Window& window) {
  all_.push_back(&window);
  FindTimers();
}

void Windows::Leave(Window& window) {
  std::erase(all_, &window);
  FindTimers();
}

}  // namespace lectern::forms
