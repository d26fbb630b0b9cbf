#include "base/run_time_error.h"

namespace lectern::base {

const char* RunTimeError::what() const noexcept {
  switch (number_) {
    case ErrorNumber::kInvalidCall:
      return "Invalid procedure call or argument";
    case ErrorNumber::kOverflow:
      return "Overflow";
    case ErrorNumber::kOutOfMemory:
      return "Out of memory";
    case ErrorNumber::kSubscript:
      return "Subscript out of range";
    case ErrorNumber::kTypeMismatch:
      return "Type mismatch";
    case ErrorNumber::kBadFileName:
      return "Bad file name or number";
    case ErrorNumber::kFileNotFound:
      return "File not found";
    case ErrorNumber::kFileAlreadyOpen:
      return "File already open";
    case ErrorNumber::kDeviceIo:
      return "Device I/O error";
    case ErrorNumber::kFileAlreadyExists:
      return "File already exists";
    case ErrorNumber::kDiskFull:
      return "Disk full";
    case ErrorNumber::kPastEndOfFile:
      return "Input past end of file";
    case ErrorNumber::kDeviceUnavailable:
      return "Device unavailable";
    case ErrorNumber::kPermissionDenied:
      return "Permission denied";
    case ErrorNumber::kPathAccess:
      return "Path/File access error";
    case ErrorNumber::kPathNotFound:
      return "Path not found";
    case ErrorNumber::kInvalidProperty:
      return "Invalid property value";
    case ErrorNumber::kObjectRequired:
      return "Object required";
    case ErrorNumber::kInvalidPicture:
      return "Invalid picture";
    case ErrorNumber::kPrinter:
      return "Printer error";
  }
  return "Application-defined or object-defined error";
}

std::string RunTimeError::Report() const {
  return "Run-time error '" + std::to_string(number()) + "':\n\n" + what();
}

}  // namespace lectern::base
