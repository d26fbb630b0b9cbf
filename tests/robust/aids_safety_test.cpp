// Nothing that a person wrote is lost, whatever happens while it is saved, moved or thrown away.
#include <csignal>
#include <gtest/gtest.h>

#include "forms/label.h"
#include "forms/rich_text_box.h"
#include "tests/kit/stopping.h"
#include "tests/kit/test_window.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

using headless::Driver;

struct Act {
  const char* name;
  std::string file;
  std::string before;  // what the file holds
  Steps way;           // how the person comes to the act
  Steps act;
  std::string after;  // what the file holds then; "(missing)" where it is gone
};

// As gtest shows it.
std::ostream& operator<<(std::ostream& stream, const Act& act) { return stream << act.name; }

const Steps kOpenNote = {"click Form1.cc0", "click Form3.File1 \"mine.not\"",
                         "type Form3.txthelp \"new text\""};
const Steps kOpenMark = {"click Form1.xb", "click Form1.File1 \"mine.bkm\""};

class KilledAtEveryOperation : public testing::TestWithParam<Act> {};

TEST_P(KilledAtEveryOperation, LeavesTheOldOrTheNewInPlaceOrTheOldInTheBackup) {
  const Act& act = GetParam();
  int deaths = 0;
  for (bool done = false; !done;) {
    const TemporaryFolder folder;
    folder.Write(act.file, act.before);
    done = PlaysToItsEnd(folder.Path(), act.way, act.act, Stop::kKilled, deaths + 1);
    const std::string in_place = folder.Read(act.file);
    const std::string kept = folder.Read("backup/" + act.file);
    if (!done) {
      ++deaths;
      EXPECT_TRUE(in_place == act.before || in_place == act.after || kept == act.before)
          << "killed at " << deaths << ": " << in_place << " and in the backup " << kept;
    } else {
      EXPECT_EQ(in_place, act.after);
    }
  }
  EXPECT_GE(deaths, act.after == "(missing)" ? 1 : 2);
}

INSTANTIATE_TEST_SUITE_P(
    Aids, KilledAtEveryOperation,
    testing::Values(
        Act{"SaveNote", "mine.not", "old text\r\n", kOpenNote, {"click Form3.f3"}, "new text\r\n"},
        Act{"SaveNoteOnLeaving",
            "mine.not",
            "old text\r\n",
            kOpenNote,
            {"answer yes", "close Form3"},
            "new text\r\n"},
        Act{"DeleteNote", "mine.not", "old\r\n", kOpenNote, {"answer yes", "click Form3.f4"}, "(missing)"},
        Act{"CreateNoteThatExists",
            "mine.not",
            "old text\r\n",
            {"click Form1.cc0", "type Form3.txthelp \"new text\""},
            {"answer \"mine\"", "click Form3.Command2"},
            "old text\r\nnew text\r\n"},
        Act{"UpdateBookmark",
            "mine.bkm",
            "\"mine\",\"Ruth\",\"4\"\r\n",
            kOpenMark,
            {"click Form1.Command6"},
            "\"mine\",\"Genesis\",\"1\"\r\n"},
        Act{"DeleteBookmark",
            "mine.bkm",
            "\"mine\",\"Ruth\",\"4\"\r\n",
            kOpenMark,
            {"click Form1.Command11"},
            "(missing)"},
        Act{"NewBookmarkThatExists",
            "mine.bkm",
            "\"mine\",\"Ruth\",\"4\"\r\n",
            kOpenMark,
            {"answer \"mine\"", "click Form1.Command10"},
            "\"mine\",\"Ruth\",\"4\"\r\n\"mine\",\"Genesis\",\"1\"\r\n"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(FullDisk, IsToldAndLeavesTheNoteInTheEditorAndItsLastVersionInTheBackup) {
  // A text that is written in one go, and one that goes to the disk in parts before it is closed.
  for (const std::size_t size : {std::size_t{20000}, std::size_t{700000}}) {
    const TemporaryFolder folder;
    folder.Write("mine.not", "old text");
    const int status = InChild([&] {
      std::signal(SIGXFSZ, SIG_IGN);
      std::vector<std::string> printed;
      Driver driver(folder.Path(), [&](const std::string& line) { printed.push_back(line); });
      Play(driver, {"click Form1.cc0", "click Form3.File1 \"mine.not\""});
      forms::Window& notes = *driver.Program().Touch("Form3");
      auto& text = dynamic_cast<forms::RichTextBox&>(*notes.Find("txthelp"));
      const auto& altered = dynamic_cast<const forms::Label&>(*notes.Find("lblc"));
      const std::string written(size, 'x');
      text.PersonTypes(written);
      printed.clear();

      LimitFiles(10000);
      driver.Execute("click Form3.f3");
      EXPECT_EQ(printed, Steps{"run-time error 61 \"Disk full\""});
      EXPECT_EQ(text.Text, written);
      EXPECT_EQ(altered.Caption, "c");
      EXPECT_EQ(folder.Read("backup/mine.not"), "old text");
      driver.Execute("click Form3.f3");  // the same again, and not another failure
      EXPECT_EQ(printed.size(), 2U);
      EXPECT_EQ(printed.back(), printed.front());
      EXPECT_EQ(folder.Read("backup/mine.not"), "old text");

      LimitFiles(RLIM_INFINITY);
      driver.Execute("click Form3.f3");
      EXPECT_EQ(printed.size(), 2U);
      EXPECT_EQ(folder.Read("mine.not"), written + "\r\n");
      EXPECT_EQ(altered.Caption, "");
    });
    EXPECT_EQ(status, 0) << size;
  }
}

TEST(Unreadable, ABookmarkEndsTheProgramANoteIsTold) {
  const TemporaryFolder folder;
  folder.Write("mine.bkm", "\"mine\",\"Ruth\",\"4\"\r\n");
  folder.Write("mine.not", "mine");
  std::vector<std::string> printed;
  Driver driver(folder.Path(), [&](const std::string& line) { printed.push_back(line); });
  Play(driver, {"click Form1.cc0", "type Form3.txthelp \"other\""});
  driver.Files().before = [](files::Operation operation, const std::string& path) {
    if (operation == files::Operation::kRead && path.find("/mine.") != std::string::npos) {
      throw base::RunTimeError(base::ErrorNumber::kPermissionDenied);
    }
  };
  printed.clear();
  Play(driver, {"click Form3.File1 \"mine.not\"", "get Form3.txthelp.Text", "get Form3.lblc.Caption"});
  Play(driver, {"click Form1.xb", "click Form1.File1 \"mine.bkm\""});
  EXPECT_EQ(printed, (Steps{"run-time error 70 \"Permission denied\"", "Form3.txthelp.Text = \"other\"",
                            "Form3.lblc.Caption = \"c\"", "run-time error 70 \"Permission denied\"", "end"}));
}

}  // namespace
}  // namespace lectern
