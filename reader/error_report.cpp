#include "reader/error_report.h"

namespace lectern::reader {

void ErrorReport::ReportError(const base::RunTimeError& error) {
  reader_.List1.Visible = true;
  base::Platform& platform = reader_.form.Platform();
  if (error.Is(base::ErrorNumber::kFileNotFound)) {
    // ODDITY(concordance-missing): every missing file is told as the concordance's; it is meant.
    platform.Message(std::string(kVersions[0].concordance) + " missing from " + reader_.Dir1.Path);
  } else {
    platform.Message(
        "An error (" + std::to_string(error.number()) +
        " ) has occured during proccessing your request. Click HELP, for information on possible "
        "sources causing the error. ");
  }
  platform.Beep();
}

}  // namespace lectern::reader
