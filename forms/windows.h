// The windows of the program that exist, in the order they came into being, and how one comes and goes.
#pragma once

#include <algorithm>
#include <cassert>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "forms/bars_and_timer.h"
#include "forms/window.h"

namespace lectern::forms {

class Windows {
 public:
  const std::vector<Window*>& All() const { return all_; }

  // Every timer of every window, in the order they were made.
  const std::vector<Timer*>& Timers() const { return timers_; }

  // For the layer: a window is there, its Form_Load behind it; a window is about to go.
  std::function<void(Window&)> made;
  std::function<void(Window&)> let_go;

 private:
  template <class Kind>
  friend class OnTouch;
  void Enter(Window& window) {
    assert(std::find(all_.begin(), all_.end(), &window) == all_.end());
    all_.push_back(&window);
    FindTimers();
  }
  void Leave(Window& window) {
    std::erase(all_, &window);
    FindTimers();
  }
  void FindTimers() {
    timers_.clear();
    for (const Window* window : all_) {
      for (Control* control : window->Controls()) {
        if (control->GetKind() == Kind::kTimer) timers_.push_back(static_cast<Timer*>(control));
      }
    }
  }

  std::vector<Window*> all_;
  std::vector<Timer*> timers_;
};

// A window that is made at the first touch. It keeps its state while it is hidden; letting it go, as its
// close box does, ends it, and the next touch makes a new one.
template <class Kind>
class OnTouch {
 public:
  OnTouch(Windows& windows, std::function<std::unique_ptr<Kind>()> make)
      : windows_(windows), make_(std::move(make)) {}

  Kind& operator()() {
    if (!window_) {
      window_ = make_();
      windows_.Enter(*window_);
      try {
        window_->Form_Load();
      } catch (...) {
        windows_.Leave(*window_);
        window_.reset();
        throw;
      }
      if (windows_.made) windows_.made(*window_);
    }
    return *window_;
  }

  void LetGo() {
    if (!window_) return;
    if (windows_.let_go) windows_.let_go(*window_);
    windows_.Leave(*window_);
    window_.reset();
  }

 private:
  Windows& windows_;
  std::function<std::unique_ptr<Kind>()> make_;
  std::unique_ptr<Kind> window_;
};

}  // namespace lectern::forms
