// A statement that could not be carried out: what the world did wrong, with the number and the standard
// text that the person is shown. Every part of the program raises this and nothing else for missing
// files, refused names, values out of range and the like; the error mode of the handler (error_modes.h)
// decides what becomes of it. What the program itself does wrong is an assertion, not one of these.
#pragma once

#include <exception>
#include <string>

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

}  // namespace lectern::base
