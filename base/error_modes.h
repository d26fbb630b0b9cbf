// The error mode of a handler, so that its first line shows which one it is in.
//
//   Ignoring ignore;                   a statement that fails is skipped, and the next one runs
//   Ignoring trap{[&] { … }};          the same, after the tidying block has run
//   neither                            the failure leaves the handler; the layer reports it
//
// Only statements that can fail are wrapped. A handler that gives up at its first failure catches RunTimeError
// itself. Loops stand outside the call: one that reads to the end of a file first checks that the file is open.
#pragma once

#include <functional>
#include <utility>

#include "base/run_time_error.h"

namespace lectern::base {

class Ignoring {
 public:
  Ignoring() = default;
  explicit Ignoring(std::function<void()> tidy) : tidy_(std::move(tidy)) {}

  // Runs the statement and returns whether it succeeded. A condition stands inside the statement too: one that
  // fails counts as not met.
  template <class Statement>
  bool operator()(Statement&& statement) const {
    try {
      std::forward<Statement>(statement)();
      return true;
    } catch (const RunTimeError&) {
      if (tidy_) tidy_();
      return false;
    }
  }

 private:
  std::function<void()> tidy_;
};

}  // namespace lectern::base
