// The general error report of the main window, at the end of error paths all over it.
#pragma once

#include <string>

#include "core/reader.h"
#include "core/run_time_error.h"

namespace lectern::core {

class ErrorReport {
 public:
  explicit ErrorReport(Reader& the_reader) : reader(the_reader) {}

  void ReportError(const RunTimeError& error);

 private:
  Reader& reader;
  std::string stop_word_;  // reserved; nothing reads it
};

}  // namespace lectern::core
