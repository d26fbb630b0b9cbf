#include <gtest/gtest.h>

#include "reader/reader.h"
#include "tests/kit/test_window.h"
#include "ui/panels.h"

namespace lectern {
namespace {

// ODDITY(concordance-missing): a missing file of any name is told as the concordance's.
TEST(ErrorReport, TellsAMissingFileAndAnyOtherFailure) {
  TestWindow test;
  ui::Panels panels(test.form);
  reader::Reader reader(test.form, panels.frms, panels.Picture1, panels.Frame1);
  reader.List1.Visible = false;

  reader.ReportError(base::RunTimeError(base::ErrorNumber::kFileNotFound));
  EXPECT_EQ(test.events,
            (std::vector<std::string>{
                "message \"CONCORD.DAT missing from " + test.folder.Path() + "\" \"Lectern 2\"", "beep"}));
  EXPECT_TRUE(reader.List1.Visible);

  test.events.clear();
  reader.ReportError(base::RunTimeError(base::ErrorNumber::kFileAlreadyOpen));
  EXPECT_EQ(
      test.events[0],
      "message \"An error (55 ) has occured during proccessing your request. Click HELP, for information on "
      "possible sources causing the error. \" \"Lectern 2\"");
}

}  // namespace
}  // namespace lectern
