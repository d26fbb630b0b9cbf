// The error modes a handler can stand in, so that its first line shows which one it is.
//
//   Ignoring ignore;   each statement that fails is skipped and the next one runs
//   Trapping trap{…};  each statement that fails runs the tidying block, then the next one runs
//   neither            the failure leaves the handler; the layer reports it and ends the program
//
// A handler that gives up at its first failure catches RunTimeError itself. Statements stand inside the
// call, loops outside: a loop whose only exit is the end of a file that failed to open ends on the
// answer of the call that opened it.
#pragma once

#include <functional>
#include <utility>

#include "base/run_time_error.h"

namespace lectern::base {

class Ignoring {
 public:
  // Carries out the statement; the answer says whether it succeeded. A test stands inside the statement
  // too: one that fails counts as not met.
  template <class Statement>
  bool operator()(Statement&& statement) const {
    try {
      std::forward<Statement>(statement)();
      return true;
    } catch (const RunTimeError&) {
      return false;
    }
  }
};

class Trapping {
 public:
  explicit Trapping(std::function<void()> tidy) : tidy_(std::move(tidy)) {}

  template <class Statement>
  bool operator()(Statement&& statement) const {
    try {
      std::forward<Statement>(statement)();
      return true;
    } catch (const RunTimeError&) {
      tidy_();
      return false;
    }
  }

 private:
  std::function<void()> tidy_;
};

}  // namespace lectern::base
