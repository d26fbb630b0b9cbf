#include "base/errors.h"

#include <algorithm>

namespace lectern::base {

namespace {

struct Text {
  ErrorNumber number;
  const char* text;
};

constexpr Text kTexts[] = {
    {ErrorNumber::kInvalidCall, "Invalid procedure call or argument"},
    {ErrorNumber::kOverflow, "Overflow"},
    {ErrorNumber::kOutOfMemory, "Out of memory"},
    {ErrorNumber::kSubscript, "Subscript out of range"},
    {ErrorNumber::kTypeMismatch, "Type mismatch"},
    {ErrorNumber::kBadFileName, "Bad file name or number"},
    {ErrorNumber::kFileNotFound, "File not found"},
    {ErrorNumber::kFileAlreadyOpen, "File already open"},
    {ErrorNumber::kDeviceIo, "Device I/O error"},
    {ErrorNumber::kFileAlreadyExists, "File already exists"},
    {ErrorNumber::kDiskFull, "Disk full"},
    {ErrorNumber::kPastEndOfFile, "Input past end of file"},
    {ErrorNumber::kDeviceUnavailable, "Device unavailable"},
    {ErrorNumber::kPermissionDenied, "Permission denied"},
    {ErrorNumber::kPathAccess, "Path/File access error"},
    {ErrorNumber::kPathNotFound, "Path not found"},
    {ErrorNumber::kInvalidProperty, "Invalid property value"},
    {ErrorNumber::kObjectRequired, "Object required"},
    {ErrorNumber::kInvalidPicture, "Invalid picture"},
    {ErrorNumber::kPrinter, "Printer error"},
};

}  // namespace

const char* RunTimeError::what() const noexcept {
  const auto* const found = std::find_if(std::begin(kTexts), std::end(kTexts),
                                         [this](const Text& text) { return text.number == number_; });
  return found == std::end(kTexts) ? "Application-defined or object-defined error" : found->text;
}

std::string RunTimeError::Report() const {
  return "Run-time error '" + std::to_string(number()) + "':\n\n" + what();
}

}  // namespace lectern::base
