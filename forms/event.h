// Something that happens to a control, with the one handler that a feature joins to it:
//
//   Command22.Click = [this] { Command22_Click(); };
//
// An event without a handler passes.
#pragma once

#include <functional>
#include <utility>

namespace lectern::forms {

template <class... Arguments>
class Event {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  Event& operator=(std::function<void(Arguments...)> handler) {
    handler_ = std::move(handler);
    return *this;
  }
  explicit operator bool() const { return static_cast<bool>(handler_); }
  void operator()(Arguments... arguments) const {
    if (handler_) handler_(arguments...);
  }

 private:
  std::function<void(Arguments...)> handler_;
};

}  // namespace lectern::forms
