// The general error report of the main window, at the end of error paths all over it.
#pragma once

#include "base/run_time_error.h"
#include "reader/reader.h"

namespace lectern::reader {

class ErrorReport {
 public:
  explicit ErrorReport(Reader& the_reader) : reader_(the_reader) {}

  void ReportError(const base::RunTimeError& error);

 private:
  Reader& reader_;
};

}  // namespace lectern::reader
