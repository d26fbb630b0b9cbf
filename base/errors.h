// What can go wrong, and what becomes of it.
//
// A statement that could not be carried out, because of the world and not of the program, throws a
// RunTimeError: missing files, refused names, values out of range. The error mode of the handler decides what
// follows:
//
//   const Ignoring ignore;               a statement that fails is skipped, and the next one runs
//   const Ignoring trap{[&] { … }};      the same, after the tidying block has run
//   neither                              the failure leaves the handler; the layer reports it
//
// Only statements that can fail are wrapped. A handler that gives up at its first failure catches
// RunTimeError itself. Loops stand outside the call: one that reads to the end of a file first checks that
// the file is open. What the program itself does wrong is an assertion.
#pragma once

#include <exception>
#include <functional>
#include <new>
#include <string>
#include <utility>

namespace lectern::base {

enum class ErrorNumber : int {
  kInvalidCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscript = 9,
  kTypeMismatch = 13,
  kBadFileName = 52,  // also: a slot that is not open
  kFileNotFound = 53,
  kFileAlreadyOpen = 55,
  kDeviceIo = 57,
  kFileAlreadyExists = 58,
  kDiskFull = 61,
  kPastEndOfFile = 62,
  kDeviceUnavailable = 68,
  kPermissionDenied = 70,
  kPathAccess = 75,
  kPathNotFound = 76,
  kInvalidProperty = 380,
  kObjectRequired = 424,
  kInvalidPicture = 481,
  kPrinter = 482,
};

class RunTimeError : public std::exception {
 public:
  explicit RunTimeError(ErrorNumber number) : number_(number) {}

  int number() const { return static_cast<int>(number_); }
  bool Is(ErrorNumber number) const { return number_ == number; }

  // The standard text, such as "File not found".
  const char* what() const noexcept override;

  // What the box of an untrapped failure says: "Run-time error '53':", an empty line, the text.
  std::string Report() const;

 private:
  ErrorNumber number_;
};

class Ignoring {
 public:
  Ignoring() = default;
  explicit Ignoring(std::function<void()> tidy) : tidy_(std::move(tidy)) {}

  // Runs the statement and returns whether it succeeded. A condition stands inside the statement too: one
  // that fails counts as not met. A lack of memory is a failure like any other, number 7.
  template <class Statement>
  bool operator()(Statement&& statement) const {
    try {
      std::forward<Statement>(statement)();
      return true;
    } catch (const RunTimeError&) {
    } catch (const std::bad_alloc&) {
    }
    if (tidy_) tidy_();
    return false;
  }

 private:
  std::function<void()> tidy_;
};

// Thrown to end the program at once, from inside any handler. It is no RunTimeError, so that no error mode
// swallows it; the layer catches it between events and closes every window without running any handler.
struct ProgramEnd {
  int status = 0;  // the process's exit status
};

}  // namespace lectern::base
